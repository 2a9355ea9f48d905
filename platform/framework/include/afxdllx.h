// Entry header, for exactly one source file of an extension module: the module's raw entry. It runs before
// the module's static objects are constructed: from there on the classes that they register are the module's
// own, until AfxInitExtensionModule takes them over.
#pragma once

#include "afx/ExtensionModule.h"

#ifndef QV_STATIC_LINK

typedef BOOL(WINAPI* AFX_RAWDLLMAIN)(HINSTANCE, DWORD, LPVOID);

extern "C" {

inline BOOL WINAPI RawDllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    return AfxRawExtensionEntry(hInstance, dwReason);
}

extern AFX_RAWDLLMAIN const _pRawDllMain;
AFX_RAWDLLMAIN const _pRawDllMain = &RawDllMain;

// The C run-time of this toolchain calls an entry of this name first.
BOOL WINAPI DllEntryPoint(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved);
BOOL WINAPI DllEntryPoint(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved) {
    return RawDllMain(hInstance, dwReason, lpReserved);
}

} // extern "C"

#endif
