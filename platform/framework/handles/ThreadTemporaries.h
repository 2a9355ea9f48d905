// The temporary objects of the calling thread that stand for anything but windows, and what Attach, Detach
// and FromHandle of their classes do.
#pragma once

#include "AttachedHandles.h"
#include "TemporaryHandles.h"
#include "afx/ImageList.h"
#include "afx/Menu.h"

// Takes the borrowed handle out of a temporary object.
inline void Forget(CGdiObject& object) {
    object.m_hObject = nullptr;
}
inline void Forget(CDC& dc) {
    dc.m_hDC = dc.m_hAttribDC = nullptr;
}
inline void Forget(CMenu& menu) {
    menu.m_hMenu = nullptr;
}
inline void Forget(CImageList& list) {
    list.m_hImageList = nullptr;
}

struct ThreadTemporaries {
    TemporaryHandles<CGdiObject, HGDIOBJ> gdiObjects;
    TemporaryHandles<CDC, HDC> dcs;
    TemporaryHandles<CMenu, HMENU> menus;
    TemporaryHandles<CImageList, HIMAGELIST> imageLists;

    // The thread's own, made at the first call and deleted when the thread or the DLL goes.
    static ThreadTemporaries& Get();
    // Null while the thread has none.
    static ThreadTemporaries* GetExisting();

    // What the next temporary object of the calling thread is numbered, and the removal of those made since.
    static unsigned long long NextSerial();
    static void RemoveSince(unsigned long long serial);

    unsigned long long nextSerial = 0;
};

// ---- What Attach, Detach, FromHandlePermanent, FromHandle and DeleteTempMap of the four classes do. m_h is
// the object's own handle, list the class's temporary objects.
template <class OBJECT, class HANDLE_TYPE>
using TemporaryList = TemporaryHandles<OBJECT, HANDLE_TYPE> ThreadTemporaries::*;

template <class OBJECT, class HANDLE_TYPE>
BOOL AttachHandle(OBJECT* object, HANDLE_TYPE& m_h, HANDLE_TYPE handle) {
    if (!handle || m_h || !AttachedHandles<OBJECT, HANDLE_TYPE>::Add(handle, object))
        return FALSE;
    m_h = handle;
    return TRUE;
}

template <class OBJECT, class HANDLE_TYPE>
HANDLE_TYPE DetachHandle(OBJECT* object, HANDLE_TYPE& m_h, TemporaryList<OBJECT, HANDLE_TYPE> list) {
    const HANDLE_TYPE handle = std::exchange(m_h, nullptr);
    if (handle && !AttachedHandles<OBJECT, HANDLE_TYPE>::Remove(handle, object)) {
        ThreadTemporaries* const temporaries = ThreadTemporaries::GetExisting();
        if (temporaries && (temporaries->*list).Find(handle) == object)
            (temporaries->*list).Retire(handle);
    }
    return handle;
}

template <class OBJECT, class HANDLE_TYPE> OBJECT* FindAttached(HANDLE_TYPE handle) {
    return handle ? AttachedHandles<OBJECT, HANDLE_TYPE>::Find(handle) : nullptr;
}

template <class OBJECT, class HANDLE_TYPE>
OBJECT* FindOrBorrow(HANDLE_TYPE handle, HANDLE_TYPE OBJECT::*m_h, TemporaryList<OBJECT, HANDLE_TYPE> list) {
    OBJECT* const attached = FindAttached<OBJECT>(handle);
    if (!handle || attached)
        return attached;
    ThreadTemporaries& thread = ThreadTemporaries::Get();
    auto& temporaries = thread.*list;
    if (OBJECT* const known = temporaries.Find(handle))
        return known;
    std::unique_ptr<OBJECT> fresh = std::make_unique<OBJECT>();
    (*fresh).*m_h = handle;
    return temporaries.Add(handle, std::move(fresh), thread.nextSerial++);
}

template <class OBJECT, class HANDLE_TYPE> void ClearTemporaries(TemporaryList<OBJECT, HANDLE_TYPE> list) {
    if (ThreadTemporaries* const temporaries = ThreadTemporaries::GetExisting())
        (temporaries->*list).RemoveSince(0);
}
