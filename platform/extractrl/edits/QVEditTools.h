// What the number edit and the timecode edit share as edits of a dialog.
#pragma once

#include <afxwin.h>

#include <string>

namespace _qv_extractrl {

// The first characters of the clipboard's text, trimmed; empty when there is none.
std::wstring QV_ReadClipboard(HWND wnd);

// The ASCII character that a full-width one stands for (digits, signs, separators); others unchanged.
wchar_t QV_NarrowChar(wchar_t c);

// Sends QVN_EDITNOTIFY to the control's parent. The control may be gone afterwards.
void QV_SendEditNotify(CWnd* control, int code);

// Enter was pressed: sends QVEDIT_ENTER; when the parent does not answer by posting a command, its default
// button is pressed, so that Enter means the same in every edit of a dialog. The control may be gone
// afterwards.
void QV_SendEnter(CWnd* control);

// Whether a field takes a typed character; isAccepted: whether it would by the character alone. A decimal
// point that is refused takes the digits typed behind it along: "12.7" in a field of whole numbers must not
// become 127. inFraction: kept by the field for that; it ends with QV_EndsFraction.
bool QV_TakesTyped(wchar_t typed, bool isAccepted, bool& inFraction);

// Whether a message means that what is typed next stands elsewhere: a key that moves or erases, a click,
// another text or selection, the end of the focus.
bool QV_EndsFraction(UINT message, WPARAM wParam);

// Whether WM_GETDLGCODE asks about a key that Enter makes.
bool QV_AsksForEnter(LPARAM dlgCodeParam);

// How many whole notches the wheel has turned; `rest` keeps what is left over.
int QV_TakeNotches(int& rest, short delta);

} // namespace _qv_extractrl
