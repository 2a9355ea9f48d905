#include "QVDict.h"

#include "Dictionary.h"
#include "Language.h"

#include <exception>
#include <utility>

namespace _qv_commonctrl {

bool IsLanguage(std::wstring_view primary) {
    const std::wstring& language = Dictionary::Get().Language();
    return language.starts_with(primary) &&
           (language.size() == primary.size() || language[primary.size()] == L'-');
}

unsigned GetLanguageGeneration() {
    return Dictionary::Get().Generation();
}

CString QV_LoadSysString(LPCWSTR key) {
    if (!key || !*key)
        return CString();
    try {
        return Dictionary::Get().Find(key);
    } catch (const std::exception&) { // memory ran out: the key is the text
        return key;
    }
}

QVDictCallBack QV_SetDictCallBack(QVDictCallBack callBack) {
    return std::exchange(Dictionary::Get().callBack, callBack);
}

QVDictCallBack QV_GetDictCallBack() {
    return Dictionary::Get().callBack;
}

BOOL QV_SetLanguage(LPCWSTR language) {
    try {
        return Dictionary::Get().SetLanguage(language ? language : L"");
    } catch (const std::exception&) {
        return FALSE;
    }
}

CString QV_GetLanguage() {
    return Dictionary::Get().Language().c_str();
}

BOOL QV_SetLanguagePath(LPCWSTR folder) {
    try {
        return Dictionary::Get().SetFolder(folder ? folder : L"");
    } catch (const std::exception&) {
        return FALSE;
    }
}

} // namespace _qv_commonctrl
