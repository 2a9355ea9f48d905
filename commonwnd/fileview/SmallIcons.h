// The small icons of shell items.
#pragma once

#include "support/Handles.h"

#include <shlobj.h>

#include <map>

namespace _qv_commonwnd {

// Finding out which picture an item has takes the shell a while, copying the picture as long again: most folders share
// one.
class CSmallIcons {
  public:
    // An item's icon, owned by this object; a plain folder's for null and for items without one. Null when the system
    // has none to give.
    HICON Of(const ITEMIDLIST* id);

  private:
    HICON At(HIMAGELIST images, int index);

    std::map<int, OwnedIcon> m_icons; // by place in the system's list of small pictures
};

} // namespace _qv_commonwnd
