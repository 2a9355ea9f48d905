// CDynLinkLibrary: makes an extension module known to the program.
#pragma once

#include "ExtensionModule.h"

// Created on the heap in the module's attach step; the chain owns it until AfxTermExtensionModule.
class AFXFRAME_API CDynLinkLibrary : public CObject {
    DECLARE_DYNAMIC(CDynLinkLibrary)
  public:
    // bSystem TRUE: a module of the system, asked for resources after all others.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource; // null: the module has no resources to offer
    CRuntimeClass* m_pClassList;
    COleObjectFactory* m_pFactoryList;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL;
};
