// CRuntimeClass: kinship of classes, and objects made by the name of their class.
#include "module/ModuleLock.h"
#include "afx/DynLinkLibrary.h"

#include <cstring>

CObject* CRuntimeClass::CreateObject() {
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    if (!pBaseClass)
        return FALSE;
    const CRuntimeClass* at = this;
    while (at && at != pBaseClass)
        at = at->m_pfnGetBaseClass ? at->m_pfnGetBaseClass() : nullptr;
    return at != nullptr;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName) {
    if (!lpszClassName)
        return nullptr;
    const ModuleLock lock;
    const AFX_MODULE_STATE& state = *AfxGetAppModuleState();
    const auto find = [lpszClassName](CRuntimeClass* at) {
        while (at && std::strcmp(at->m_lpszClassName, lpszClassName) != 0)
            at = at->m_pNextClass;
        return at;
    };
    CRuntimeClass* found = find(state.m_pClassList);
    for (const CDynLinkLibrary* library = state.m_pLibraryList; library && !found;
         library = library->m_pNextDLL)
        found = find(library->m_pClassList);
    return found;
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR lpszClassName) {
    CRuntimeClass* const found = FromName(lpszClassName);
    return found ? found->CreateObject() : nullptr;
}
