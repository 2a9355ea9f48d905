// The delivery of messages to window objects.
#pragma once

#include "afx/Wnd.h"

struct AfxThreadState;

// Delivers a message to an object: keeps the message in work, lets no exception out.
LRESULT AfxCallWndProc(AfxThreadState& state, CWnd* pWnd, HWND hWnd, UINT message, WPARAM wParam,
                       LPARAM lParam);
// What the system gets for a message whose handler threw.
LRESULT AnswerAfterException(const MSG& message);
