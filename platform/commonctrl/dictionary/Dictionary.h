// Dictionary.h: the texts of the current language.
#pragma once

#include "DictParse.h"
#include "QVDict.h"

#include <set>
#include <string>
#include <unordered_map>

namespace _qv_commonctrl {

// Files are read at the first question. User-interface thread.
class Dictionary {
  public:
    static Dictionary& Get();

    // The text of a key; the key itself when there is none, which the debugger output says once.
    CString Find(std::wstring_view key);
    // Empty: the user's language. FALSE, and the former language stays, when it has no file.
    bool SetLanguage(std::wstring language);
    // Empty: the default folder. FALSE, and nothing changes, when it does not exist.
    bool SetFolder(std::wstring folder);
    const std::wstring& Language();
    // Counts up with every change of language.
    unsigned Generation();

    QVDictCallBack callBack = nullptr;

  private:
    // Texts are kept as CString: a look-up hands out a shared buffer and copies nothing.
    using Texts = std::unordered_map<std::wstring, CString, DictHash<wchar_t>, std::equal_to<>>;

    Dictionary();
    static bool AddTexts(const std::wstring& path, Texts& texts);
    void Load();
    std::wstring UsersLanguage() const;
    bool LoadLanguage(const std::wstring& language);

    std::wstring m_folder;
    std::wstring m_language; // empty: nothing read yet
    unsigned m_generation = 0;
    Texts m_texts;
    std::set<std::wstring> m_reported;
};

} // namespace _qv_commonctrl
