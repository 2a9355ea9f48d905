// QVExtraCtrlDef.h - linkage of the classes and functions of QVExtraCtrlU.dll, and the notifications its
// controls send.
#pragma once

#if defined(QV_STATIC_LINK)
#define QVEXTRACTRL_API
#elif defined(QVEXTRACTRL_EXPORTS)
#define QVEXTRACTRL_API __declspec(dllexport)
#else
#define QVEXTRACTRL_API __declspec(dllimport)
#endif

namespace _qv_extractrl {

// Sent (SendMessage) by the number edit and the timecode edit to their parent; values as for WM_USER + n.
//   wParam: one of QVEditNotifyCode; lParam: CWnd* of the sender. The answer is not used.
constexpr unsigned QVN_EDITNOTIFY = 0x0400 + 1324;

enum QVEditNotifyCode : int {
    QVEDIT_CHANGED = 1, // the value has changed
    QVEDIT_ENTER = 4,   // Enter was pressed; the value is final
};

// Sent by the rectangle tracker to its parent after each step of a move by the user.
//   wParam: the tracker's control id; lParam: CWnd* of the tracker. The answer is not used.
constexpr unsigned QVN_TRACKERMOVE = 0x0400 + 1001;

} // namespace _qv_extractrl
