// The record of an extension module, and its life from load to unload.
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
#pragma once

#include "ModuleState.h"

// One per extension module, zero-initialised, with the life of the module.
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
