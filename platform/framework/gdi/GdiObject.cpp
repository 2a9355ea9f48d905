// CGdiObject: handle, temporary objects of the handle's own class, deletion.
#include "handles/ThreadTemporaries.h"
#include "afx/ResourceException.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)

namespace {

std::unique_ptr<CGdiObject> ObjectOfKind(UINT nType) {
    switch (nType) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return std::make_unique<CPen>();
    case OBJ_BRUSH:
        return std::make_unique<CBrush>();
    case OBJ_FONT:
        return std::make_unique<CFont>();
    case OBJ_BITMAP:
        return std::make_unique<CBitmap>();
    case OBJ_REGION:
        return std::make_unique<CRgn>();
    default:
        return std::make_unique<CGdiObject>();
    }
}

} // namespace

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    return AttachHandle<CGdiObject>(this, m_hObject, hObject);
}

HGDIOBJ CGdiObject::Detach() {
    return DetachHandle<CGdiObject>(this, m_hObject, &ThreadTemporaries::gdiObjects);
}

CGdiObject* PASCAL CGdiObject::FromHandlePermanent(HGDIOBJ hObject) {
    return FindAttached<CGdiObject>(hObject);
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject) {
    CGdiObject* const attached = FromHandlePermanent(hObject);
    if (!hObject || attached)
        return attached;
    ThreadTemporaries& thread = ThreadTemporaries::Get();
    auto& temporaries = thread.gdiObjects;
    std::unique_ptr<CGdiObject> fresh = ObjectOfKind(::GetObjectType(hObject));
    CGdiObject* const known = temporaries.Find(hObject);
    if (known && known->GetRuntimeClass() == fresh->GetRuntimeClass())
        return known;
    temporaries.Retire(hObject); // the system has given the handle to an object of another kind
    fresh->m_hObject = hObject;
    return temporaries.Add(hObject, std::move(fresh), thread.nextSerial++);
}

void PASCAL CGdiObject::DeleteTempMap() {
    ClearTemporaries(&ThreadTemporaries::gdiObjects);
}

BOOL CGdiObject::DeleteObject() {
    return m_hObject ? ::DeleteObject(Detach()) : FALSE;
}

BOOL CGdiObject::AttachNew(HGDIOBJ hObject) {
    if (Attach(hObject))
        return TRUE;
    if (hObject)
        ::DeleteObject(hObject);
    return FALSE;
}

void CGdiObject::AttachNewOrThrow(HGDIOBJ hObject) {
    if (!AttachNew(hObject))
        AfxThrowResourceException();
}
