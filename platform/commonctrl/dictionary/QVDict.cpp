#include "QVDict.h"

#include "QVDictParse.h"
#include "QVLanguage.h"
#include "module/QVModule.h"

#include <set>
#include <utility>

namespace _qv_commonctrl {

namespace {

constexpr std::size_t kMostFileBytes = 16u << 20;
constexpr const wchar_t* kFallbackLanguage = L"en-US";

struct KeyHash {
    using is_transparent = void;
    std::size_t operator()(std::wstring_view key) const noexcept {
        return std::hash<std::wstring_view>()(key);
    }
};

// Texts are kept as CString: a look-up hands out a shared buffer and copies nothing.
using Texts = std::unordered_map<std::wstring, CString, KeyHash, std::equal_to<>>;

std::wstring FileOf(const std::wstring& folder, const std::wstring& language) {
    return folder + L"\\" + language + L".txt";
}

bool IsLanguageName(const std::wstring& name) {
    if (name.empty() || name.size() >= LOCALE_NAME_MAX_LENGTH)
        return false;
    for (const wchar_t c : name) {
        const bool letter = (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z');
        if (!letter && !(c >= L'0' && c <= L'9') && c != L'-')
            return false;
    }
    return true;
}

// Adds the texts of a file to `texts`, over those that are there. An empty text counts as missing.
bool AddTexts(const std::wstring& path, Texts& texts) {
    std::string bytes;
    if (!ReadWholeFile(path, kMostFileBytes, bytes))
        return false;
    for (const auto& [key, text] : ParseDict(bytes)) {
        if (!text.empty())
            texts[std::wstring(key.begin(), key.end())] =
                CString(reinterpret_cast<LPCWSTR>(text.data()), static_cast<int>(text.size()));
    }
    return true;
}

class Dictionary {
  public:
    Dictionary() : m_folder(GetDataFolder(L"lang")) {}

    CString Find(std::wstring_view key) {
        Load();
        const auto found = m_texts.find(key);
        if (found != m_texts.end())
            return found->second;
        if (m_reported.size() < kMostReports && m_reported.emplace(key).second)
            DebugLine(L"the dictionary " + m_language + L" has no text for " + std::wstring(key));
        return CString(key.data(), static_cast<int>(key.size()));
    }

    bool SetLanguage(std::wstring language) {
        if (language.empty())
            language = UsersLanguage();
        else if (!IsLanguageName(language))
            return false;
        return LoadLanguage(language);
    }

    bool SetFolder(std::wstring folder) {
        if (folder.empty())
            folder = GetDataFolder(L"lang");
        while (folder.size() > 1 && folder.back() == L'\\')
            folder.pop_back();
        if (!FolderExists(folder))
            return false;
        const std::wstring language = Language();
        m_folder = folder;
        if (!LoadLanguage(language))
            LoadLanguage(UsersLanguage());
        return true;
    }

    const std::wstring& Language() {
        Load();
        return m_language;
    }

    unsigned Generation() {
        Load();
        return m_generation;
    }

    QVDictCallBack callBack = nullptr;

  private:
    static constexpr std::size_t kMostReports = 1000; // a program may look up what a user typed

    void Load() {
        if (!m_language.empty())
            return;
        if (!LoadLanguage(UsersLanguage()))
            m_language = kFallbackLanguage; // no files at all: keys are shown
    }

    // The user's interface language, another region of it, or the fallback: the first that has a file.
    std::wstring UsersLanguage() const {
        wchar_t name[LOCALE_NAME_MAX_LENGTH] = L"";
        const LCID locale = MAKELCID(GetUserDefaultUILanguage(), SORT_DEFAULT);
        if (LCIDToLocaleName(locale, name, LOCALE_NAME_MAX_LENGTH, 0) == 0)
            return kFallbackLanguage;
        if (GetFileAttributesW(FileOf(m_folder, name).c_str()) != INVALID_FILE_ATTRIBUTES)
            return name;
        const std::wstring primary = std::wstring(name).substr(0, std::wstring(name).find(L'-'));
        WIN32_FIND_DATAW found = {};
        const HANDLE search = FindFirstFileW((m_folder + L"\\" + primary + L"-*.txt").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE)
            return kFallbackLanguage;
        FindClose(search);
        const std::wstring file = found.cFileName;
        return file.substr(0, file.rfind(L'.'));
    }

    bool LoadLanguage(const std::wstring& language) {
        Texts texts;
        AddTexts(FileOf(m_folder, kFallbackLanguage), texts);
        if (!AddTexts(FileOf(m_folder, language), texts))
            return false;
        m_texts = std::move(texts);
        m_language = language;
        m_reported.clear();
        ++m_generation;
        return true;
    }

    std::wstring m_folder;
    std::wstring m_language; // empty: nothing read yet
    unsigned m_generation = 0;
    Texts m_texts;
    std::set<std::wstring> m_reported;
};

Dictionary& Dict() {
    static Dictionary dictionary;
    return dictionary;
}

} // namespace

bool IsLanguage(std::wstring_view primary) {
    const std::wstring& language = Dict().Language();
    return language.starts_with(primary) &&
           (language.size() == primary.size() || language[primary.size()] == L'-');
}

unsigned GetLanguageGeneration() {
    return Dict().Generation();
}

CString QV_LoadSysString(LPCWSTR key) {
    if (!key || !*key)
        return CString();
    try {
        return Dict().Find(key);
    } catch (const std::exception&) { // memory ran out: the key is the text
        return key;
    }
}

QVDictCallBack QV_SetDictCallBack(QVDictCallBack callBack) {
    return std::exchange(Dict().callBack, callBack);
}

QVDictCallBack QV_GetDictCallBack() {
    return Dict().callBack;
}

BOOL QV_SetLanguage(LPCWSTR language) {
    try {
        return Dict().SetLanguage(language ? language : L"");
    } catch (const std::exception&) {
        return FALSE;
    }
}

CString QV_GetLanguage() {
    return Dict().Language().c_str();
}

BOOL QV_SetLanguagePath(LPCWSTR folder) {
    try {
        return Dict().SetFolder(folder ? folder : L"");
    } catch (const std::exception&) {
        return FALSE;
    }
}

} // namespace _qv_commonctrl
