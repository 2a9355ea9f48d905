// The connection of an object to the window that is being created for it.
#pragma once

class CWnd;

// The next window that the thread creates becomes pWnd's. False when the system refused.
bool AfxHookWindowCreate(CWnd* pWnd);
// Ends that; false when no window was created meanwhile.
bool AfxUnhookWindowCreate();
// Makes the common controls' classes known, once.
void AfxInitControls();
