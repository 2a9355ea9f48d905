// From the default texts of the library's templates and menu to the texts of the user's language.
#pragma once

#include <QVDict.h>
#include <QVMenuEx.h>

#include <cstddef>
#include <string_view>

namespace _qv_commonwnd {

// A default text and the dictionary key that stands for it.
struct DictRow {
    std::wstring_view defaultText;
    const wchar_t* key;
};

// The rows are searched in their order; letter case does not count and the first equal one wins.
struct DictTable {
    const DictRow* rows;
    std::size_t count;
};
DictTable TemplateTextTable();
DictTable ViewMenuTable();

// The key of a default text, null when the table has no such row.
const wchar_t* FindDictKey(const DictTable& table, std::wstring_view text);

// The dictionary text of a template's default text; any other text comes back unchanged. Null and empty come
// back as the very same pointer. The result lives in one buffer of the module and ends at the next call: copy
// it at once.
const wchar_t* QV_GetCommonDictText(const wchar_t* text);

// The same, to keep.
CString QV_GetCommonDictString(const wchar_t* text);

// Gives the items of a view menu (icons, list, details, thumbnails) the dictionary's texts; items with other
// texts and separators stay. Null does nothing. Part of the module's interface; no window of the library has
// such a menu.
void QV_TranslateViewMenu(_qv_commonctrl::CQVMenuEx* menu);

// Passes the texts of a template through the table above while CQVDialog initialises a dialog: lives round
// the call of CQVDialog::OnInitDialog.
class TemplateTranslation {
  public:
    TemplateTranslation() { _qv_commonctrl::QV_SetDictCallBack(QV_GetCommonDictText); }
    ~TemplateTranslation() { _qv_commonctrl::QV_SetDictCallBack(nullptr); }
    TemplateTranslation(const TemplateTranslation&) = delete;
    TemplateTranslation& operator=(const TemplateTranslation&) = delete;
};

} // namespace _qv_commonwnd
