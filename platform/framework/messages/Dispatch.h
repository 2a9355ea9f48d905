// From a row of a message map to the call of its handler.
#pragma once

#include "afx/MessageMap.h"

// The row of a command or notification in the map or in those of its base classes: nCode low word code, high
// word message (0: WM_COMMAND); null: no handler.
const AFX_MSGMAP_ENTRY* AfxFindCommandEntry(const AFX_MSGMAP* map, UINT nID, int nCode);
// Calls the handler of a command or notification. pExtra: AFX_NOTIFY* of a notification. TRUE when it took
// it.
BOOL AfxDispatchCommand(CCmdTarget* pTarget, const AFX_MSGMAP_ENTRY& entry, UINT nID, void* pExtra);
// Calls the handler of a window message. pResult is set when TRUE is returned; FALSE asks for default
// processing.
BOOL AfxDispatchMessage(CWnd* pWnd, const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam,
                        LRESULT* pResult);
