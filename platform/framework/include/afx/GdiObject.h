// CGdiObject: what pens, brushes, fonts, bitmaps and regions have in common.
//
//     CBrush ground(RGB(0x26, 0x28, 0x2C));
//     CBrush* const former = dc.SelectObject(&ground);
//     dc.PatBlt(0, 0, 10, 10, PATCOPY);
//     dc.SelectObject(former);
//
// An object owns its handle and deletes it when it is destroyed or DeleteObject is called; deselect it from
// every device context first. Attach takes a handle over, Detach gives it back. FromHandle finds the object
// of a handle on the calling thread, or makes a temporary one that borrows the handle: use it at once and
// never keep or delete it; idle processing removes it. Functions return FALSE (0, null) without a handle and
// when the system refuses. Constructors that create throw CResourceException* on failure. Colours are
// 0x00BBGGRR; measures are logical units of the device context in which the object is used.
#pragma once

#include "Object.h"

class AFXFRAME_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)
  public:
    HGDIOBJ m_hObject = nullptr; // null while the object has no handle

    CGdiObject() = default;
    ~CGdiObject() override { DeleteObject(); }

    operator HGDIOBJ() const { return GetSafeHandle(); }
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    // FALSE for null and while this object has a handle, or the handle has another object on this thread.
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach(); // null when there was none
    // The object of a handle, temporary if need be; null for null. Temporary objects have the class of the
    // handle.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    static CGdiObject* PASCAL FromHandlePermanent(HGDIOBJ hObject); // null when nobody has attached it
    static void PASCAL DeleteTempMap(); // removes the thread's temporary objects; handles stay

    BOOL DeleteObject();
    // Fills lpObject with the platform's description; bytes stored, 0 on failure.
    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObjectW(m_hObject, nCount, lpObject); }
    UINT GetObjectType() const { return m_hObject ? ::GetObjectType(m_hObject) : 0; }
    BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }
    BOOL operator==(const CGdiObject& obj) const { return obj.m_hObject == m_hObject; }
    BOOL operator!=(const CGdiObject& obj) const { return obj.m_hObject != m_hObject; }

  protected:
    // Attach for handles just made: a handle that cannot be attached is deleted.
    BOOL AttachNew(HGDIOBJ hObject);
    void AttachNewOrThrow(HGDIOBJ hObject);
};
