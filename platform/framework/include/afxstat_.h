// Module state, extension modules and the look-up of resources through them.
#pragma once

#include "afx.h"

class CDynLinkLibrary;
class COleObjectFactory; // kept in the records for their documented shape; this framework makes none
class CWinApp;

// What one program (or one regular library) holds. Extension modules share the state of the program.
struct AFX_MODULE_STATE {
    CWinApp* m_pCurrentWinApp;          // null in a program that is not built with the framework
    HINSTANCE m_hCurrentInstanceHandle; // the program's instance; never null
    HINSTANCE m_hCurrentResourceHandle; // where resource look-up starts; never null
    LPCTSTR m_lpszCurrentAppName;       // never null, may be empty
    CRuntimeClass* m_pClassList;        // creatable classes that no extension module has taken over
    COleObjectFactory* m_pFactoryList;
    CDynLinkLibrary* m_pLibraryList; // extension modules, the one loaded last first
};

// The state in force on the calling thread; never null.
AFXFRAME_API AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
// The state of the program itself; never null.
AFXFRAME_API AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState();
// Puts a state in force on the calling thread and returns the one before. Null means the program's state.
AFXFRAME_API AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState);
// The state that the calling module owns: extension modules and programs share the program's.
inline AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState() {
    return AfxGetAppModuleState();
}

// Puts a state in force for the length of a scope.
class AFXFRAME_API AFX_MAINTAIN_STATE2 {
  public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pNewState);
    ~AFX_MAINTAIN_STATE2();
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

  private:
    AFX_MODULE_STATE* m_pPrevModuleState;
};

#define AFX_JOIN_(a, b) a##b
#define AFX_NAME_BY_LINE_(name, line) AFX_JOIN_(name, line)
#define AFX_MANAGE_STATE(p) const AFX_MAINTAIN_STATE2 AFX_NAME_BY_LINE_(_ctlState, __LINE__)(p);

// One per extension module, zero-initialised, with the life of the module.
//
//     static AFX_EXTENSION_MODULE g_module = {};
//     extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
//         if (reason == DLL_PROCESS_ATTACH) {
//             if (!AfxInitExtensionModule(g_module, instance))
//                 return FALSE;
//             new CDynLinkLibrary(g_module);
//         } else if (reason == DLL_PROCESS_DETACH) {
//             AfxTermExtensionModule(g_module);
//         }
//         return TRUE;
//     }
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;                // where the module's resources are; hModule unless set otherwise
    CRuntimeClass* pFirstSharedClass; // the module's creatable classes
    COleObjectFactory* pFirstSharedFactory;
};

// Takes the classes that the module's static objects registered into the record and gives the program its own
// list back. Called at process attach; a second call does nothing. FALSE for a null handle.
AFXFRAME_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
// Called at process detach: takes the module's CDynLinkLibrary out of the chain and deletes it, and forgets
// everything else that points into the module. bAll TRUE does so for all extension modules.
AFXFRAME_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);
// The step before a module's static objects are constructed (reason attach) and after a load that was given
// up (reason detach); afxdllx.h calls it.
AFXFRAME_API BOOL AFXAPI AfxRawExtensionEntry(HINSTANCE hInstance, DWORD dwReason);

// Makes an extension module known to the program. Created on the heap in the module's attach step; the chain
// owns it until AfxTermExtensionModule.
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

// The program's instance and the module in which a resource look-up starts. Never null.
AFXFRAME_API HINSTANCE AFXAPI AfxGetInstanceHandle();
AFXFRAME_API HINSTANCE AFXAPI AfxGetResourceHandle();
// Null puts the program's instance back.
AFXFRAME_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
// The module that holds a resource: the current resource handle, then the extension modules (the one loaded
// last first), then system modules, then the framework. When nobody has it, the current resource handle.
AFXFRAME_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
// Loads a string of the chain above; returns its length in characters without terminator, 0 when missing.
AFXFRAME_API int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);
