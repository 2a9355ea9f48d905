// QVMenuEx.h: a menu whose texts are read and rewritten by position or id.
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

class QVCOMMONCTRL_API CQVMenuEx : public CMenu {
  public:
    // Reads an item's text into `text` (emptied first). `flags` is MF_BYPOSITION or MF_BYCOMMAND.
    // Returns its length; 0 for an item that does not exist or has no text.
    int GetMenuStringW(UINT item, CString& text, UINT flags) const;

    // Replaces text, id and flags of an item, keeping its check and enabled state and its pop-up.
    BOOL ModifyMenuW(UINT position, UINT flags, UINT_PTR id, LPCWSTR text);
};

} // namespace _qv_commonctrl
