// Names and pictures of a list's items as the list's owner has answered them.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <map>
#include <string>
#include <utility>

namespace _qv_commonwnd {

// A shell's view finds an item's name and picture in files and registry each time its list paints the item. The
// answers are kept until something may have changed them; whoever sees such a thing calls Forget.
class CListAnswers {
  public:
    // Fills in what `item.mask` asks for, as an owner answers LVN_GETDISPINFO. False, and nothing is filled in, unless
    // all of it is known for the item of this place and `lParam`.
    bool Fill(LVITEMW& item) const;

    // Keeps what the owner answered to `asked` (LVIF_TEXT, LVIF_IMAGE; anything else is not kept).
    void Keep(UINT asked, const LVITEMW& item);

    void Forget();

  private:
    struct Answer {
        LPARAM param = 0;
        UINT known = 0; // LVIF_TEXT, LVIF_IMAGE
        std::wstring text;
        int image = 0;
    };

    std::map<std::pair<int, int>, Answer> m_answers; // by item and column
};

} // namespace _qv_commonwnd
