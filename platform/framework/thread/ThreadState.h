// What the framework keeps for each thread: its windows' objects, the message in work, the look-up cache.
#pragma once

#include "handles/TemporaryWindows.h"
#include "handles/WndMap.h"
#include "messages/MessageCache.h"
#include "afx/ModuleState.h"
#include "afx/Wnd.h"

#include <unordered_map>

class CFileDialog;
class CWinThread;
class WndWatch;

struct AfxThreadState {
    WndMap permanentWindows;
    TemporaryWindows temporaryWindows;
    // Former procedures of windows that were unsubclassed while somebody else stood between: our procedure is
    // still in their chain and passes on.
    std::unordered_map<HWND, WNDPROC> orphanProcedures;
    MessageCache messageCache;
    MSG currentMessage = {};
    int callDepth = 0; // handlers on the stack
    MSG pumpedMessage = {};
    POINT lastMousePos = {};
    UINT lastPumpedMessage = 0;
    CWnd* creatingWnd = nullptr;
    HHOOK creationHook = nullptr;
    WndWatch* watches = nullptr;
    CFileDialog* startingFileDialog = nullptr; // the system is about to make its hook's window
    CWinThread* thread = nullptr;
    AFX_MODULE_STATE* moduleState = nullptr;
    wchar_t className[96] = {};

    // The calling thread's, made at the first call; it goes with the thread or with the framework.
    static AfxThreadState& Get();
    // Null while the thread has none; in destructors, which must not bring it back.
    static AfxThreadState* GetExisting();
};
