// The loop of a window that is modal: runs until the window says that it need not go on.
#pragma once

#include "handles/TemporaryScope.h"
#include "window/WndWatch.h"
#include "afx/Wnd.h"

class ModalLoop {
  public:
    // flags: MLF_*.
    ModalLoop(CWnd& wnd, DWORD flags);

    // False when the program was told to quit meanwhile.
    bool Run();
    // False once the window's object was deleted.
    bool IsAlive() const { return m_watch.IsAlive(); }

  private:
    bool MayGoOn() const { return IsAlive() && m_wnd.ContinueModal(); }
    void WorkWhileIdle();
    bool DoIdleStep();
    void OnMessageDone(const MSG& message);
    void Show();

    CWnd& m_wnd;
    WndWatch m_watch;
    const DWORD m_flags;
    const TemporaryScope m_temporaries;
    bool m_showPending;
    LONG m_idleSteps = 0; // since the last message that may bring idle work
    int m_messages = 0;
};
