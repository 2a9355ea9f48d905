// DirIcons.h: the icons of directory trees and lists.
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

// An image list with the skin's icons in the order of FolderIcon, composed on the ground of a colour index.
// The caller destroys it. Null when the system has none to give.
HIMAGELIST MakeDirIcons(int groundColorIndex, UINT dpi);

} // namespace _qv_commonctrl
