// CDynLinkLibrary: an extension module's place in the chain.
#include "ModuleLock.h"
#include "afx/DynLinkLibrary.h"

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

namespace {

void PutFirst(CDynLinkLibrary& library) {
    const ModuleLock lock;
    AFX_MODULE_STATE& app = *AfxGetAppModuleState();
    library.m_pNextDLL = app.m_pLibraryList;
    app.m_pLibraryList = &library;
}

} // namespace

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_pClassList(state.pFirstSharedClass),
      m_pFactoryList(state.pFirstSharedFactory), m_bSystem(bSystem) {
    PutFirst(*this);
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource), m_pClassList(nullptr), m_pFactoryList(nullptr),
      m_bSystem(FALSE) {
    PutFirst(*this);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    const ModuleLock lock;
    CDynLinkLibrary** link = &AfxGetAppModuleState()->m_pLibraryList;
    while (*link && *link != this)
        link = &(*link)->m_pNextDLL;
    if (*link)
        *link = m_pNextDLL;
}
