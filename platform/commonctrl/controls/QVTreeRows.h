// QVTreeRows.h: paints the items of a tree view with the skin.
#pragma once

#include <windows.h>
#include <commctrl.h>

namespace _qv_commonctrl {

// Answers a custom-draw notification of a tree view: paints the item in place of the control.
LRESULT PaintTreeItem(NMTVCUSTOMDRAW& draw);

} // namespace _qv_commonctrl
