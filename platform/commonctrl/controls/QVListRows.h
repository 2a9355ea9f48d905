// QVListRows.h: paints the items of a list view with the skin.
#pragma once

#include <windows.h>
#include <commctrl.h>

namespace _qv_commonctrl {

// Answers a custom-draw notification of a list view: paints the item in place of the control.
LRESULT PaintListItem(NMLVCUSTOMDRAW& draw);

} // namespace _qv_commonctrl
