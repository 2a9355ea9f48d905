// Every key that a source or template names has a text in every language that is shipped.
#include "dictionary/DictParse.h"
#include "StageFolder.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

#include <map>

using namespace _qv_commonctrl;

namespace {

const char* const kUsedKeys[] = {
#include "used_keys.txt"
    "IDS_COMMON_OK",
};

std::map<std::wstring, DictTexts> shippedLanguages() {
    std::map<std::wstring, DictTexts> languages;
    const std::wstring folder = stageFolder() + L"\\lang\\";
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW((folder + L"*.txt").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return languages;
    do {
        languages[found.cFileName] = ParseDict(qvtest::readFile(folder + found.cFileName));
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return languages;
}

std::string narrow(std::u16string_view text) {
    return std::string(text.begin(), text.end());
}

TEST(DictKeys, ChineseAndEnglishAreShipped) {
    const auto languages = shippedLanguages();
    EXPECT_TRUE(languages.contains(L"zh-CN.txt"));
    EXPECT_TRUE(languages.contains(L"en-US.txt"));
}

TEST(DictKeys, EveryUsedKeyHasATextInEveryLanguage) {
    for (const auto& [file, texts] : shippedLanguages()) {
        for (const char* key : kUsedKeys) {
            const auto found = texts.find(DecodeUtf8(key));
            EXPECT_TRUE(found != texts.end() && !found->second.empty())
                << key << " in " << std::string(file.begin(), file.end());
        }
    }
}

TEST(DictKeys, LanguagesHaveTheSameKeys) {
    const auto languages = shippedLanguages();
    const auto english = languages.find(L"en-US.txt");
    ASSERT_NE(english, languages.end());
    for (const auto& [file, texts] : languages) {
        for (const auto& [key, text] : texts)
            EXPECT_TRUE(english->second.contains(key))
                << narrow(key) << " in " << std::string(file.begin(), file.end());
        EXPECT_EQ(english->second.size(), texts.size());
    }
}

TEST(DictKeys, TextsHaveNoBrokenCharacters) {
    for (const auto& [file, texts] : shippedLanguages()) {
        for (const auto& [key, text] : texts)
            EXPECT_EQ(std::u16string::npos, text.find(char16_t(0xFFFD))) << narrow(key);
    }
}

} // namespace
