// Where the string dialog's controls stand; plain values, no window.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

struct StringDialogLayout {
    CRect label;
    CRect edit;
    CRect ok;
    CRect cancel;
};

// With a prompt above the field. Client pixels; the figures are pixels at 96 DPI and scaled to `dpi`.
StringDialogLayout LayOutPromptedString(const CRect& client, UINT dpi);

// The resizable form: the field fills the client area but for its margins (`label` is empty); the buttons are
// moved down from where they stand, so that each change of size moves them further.
StringDialogLayout LayOutStringWindow(const CRect& client, const CRect& ok, const CRect& cancel, UINT dpi);

} // namespace _qv_commonwnd
