// The module state in force, and the handles of the program that it holds.
#include "thread/ThreadState.h"
#include "afx/ModuleState.h"
#include "afx/Resources.h"

namespace {

AFX_MODULE_STATE MakeAppState() {
    AFX_MODULE_STATE state = {};
    state.m_hCurrentInstanceHandle = ::GetModuleHandleW(nullptr);
    state.m_hCurrentResourceHandle = state.m_hCurrentInstanceHandle;
    state.m_lpszCurrentAppName = L"";
    return state;
}

} // namespace

AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState() {
    static AFX_MODULE_STATE state = MakeAppState();
    return &state;
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState() {
    AFX_MODULE_STATE* const own = AfxThreadState::Get().moduleState;
    return own ? own : AfxGetAppModuleState();
}

AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState) {
    AFX_MODULE_STATE* const former = AfxGetModuleState();
    AfxThreadState::Get().moduleState = pNewState;
    return former;
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pNewState)
    : m_pPrevModuleState(AfxSetModuleState(pNewState)) {
}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2() {
    AfxSetModuleState(m_pPrevModuleState);
}

HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AFXAPI AfxGetResourceHandle() {
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) {
    AFX_MODULE_STATE& state = *AfxGetModuleState();
    state.m_hCurrentResourceHandle = hInstResource ? hInstResource : state.m_hCurrentInstanceHandle;
}
