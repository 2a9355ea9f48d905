// The module state: what one program holds for the framework.
#pragma once

#include "Object.h"

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
