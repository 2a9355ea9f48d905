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

// Whether WM_GETDLGCODE asks about a key that Enter makes.
bool QV_AsksForEnter(LPARAM dlgCodeParam);

// How many whole notches the wheel has turned; `rest` keeps what is left over.
int QV_TakeNotches(int& rest, short delta);

} // namespace _qv_extractrl
