#include "Dictionary.h"

#include "module/Files.h"
#include "module/Guards.h"
#include "module/OwnModule.h"

namespace _qv_commonctrl {

namespace {

constexpr std::size_t kMostFileBytes = 16u << 20;
constexpr std::size_t kMostReports = 1000; // a program may look up what a user typed
constexpr const wchar_t* kFallbackLanguage = L"en-US";

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

} // namespace

Dictionary& Dictionary::Get() {
    static Dictionary dictionary;
    return dictionary;
}

Dictionary::Dictionary() : m_folder(GetDataFolder(L"lang")) {
}

CString Dictionary::Find(std::wstring_view key) {
    Load();
    const auto found = m_texts.find(key);
    if (found != m_texts.end())
        return found->second;
    if (m_reported.size() < kMostReports && m_reported.emplace(key).second)
        DebugLine(L"the dictionary " + m_language + L" has no text for " + std::wstring(key));
    return CString(key.data(), static_cast<int>(key.size()));
}

const std::wstring& Dictionary::Language() {
    Load();
    return m_language;
}

unsigned Dictionary::Generation() {
    Load();
    return m_generation;
}

bool Dictionary::SetLanguage(std::wstring language) {
    if (language.empty())
        language = UsersLanguage();
    else if (!IsLanguageName(language))
        return false;
    return LoadLanguage(language);
}

bool Dictionary::SetFolder(std::wstring folder) {
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

void Dictionary::Load() {
    if (!m_language.empty())
        return;
    if (!LoadLanguage(UsersLanguage()))
        m_language = kFallbackLanguage; // no files at all: keys are shown
}

// The user's interface language, another region of it, or the fallback: the first that has a file.
std::wstring Dictionary::UsersLanguage() const {
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = L"";
    const LCID locale = MAKELCID(GetUserDefaultUILanguage(), SORT_DEFAULT);
    if (LCIDToLocaleName(locale, name, LOCALE_NAME_MAX_LENGTH, 0) == 0)
        return kFallbackLanguage;
    if (GetFileAttributesW(FileOf(m_folder, name).c_str()) != INVALID_FILE_ATTRIBUTES)
        return name;
    const std::wstring primary = std::wstring(name).substr(0, std::wstring(name).find(L'-'));
    WIN32_FIND_DATAW found = {};
    const std::wstring anyRegion = m_folder + L"\\" + primary + L"-*.txt";
    if (!Valid<FindHandle>(FindFirstFileW(anyRegion.c_str(), &found)))
        return kFallbackLanguage;
    const std::wstring file = found.cFileName;
    return file.substr(0, file.rfind(L'.'));
}

bool Dictionary::LoadLanguage(const std::wstring& language) {
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

// Adds the texts of a file to `texts`, over those that are there. An empty text counts as missing.
bool Dictionary::AddTexts(const std::wstring& path, Texts& texts) {
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

} // namespace _qv_commonctrl
