// The text of a window, whatever its length.
#include "WindowText.h"

CString WindowText(HWND hWnd) {
    CString text;
    const int length = ::GetWindowTextLengthW(hWnd);
    if (length <= 0)
        return text;
    const int stored = ::GetWindowTextW(hWnd, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer(stored);
    return text;
}
