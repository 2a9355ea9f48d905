// Language.h: what the skin asks of the dictionary.
#pragma once

#include <string_view>

namespace _qv_commonctrl {

// Whether the current language's primary part is `primary` ("zh" for zh-CN and zh-TW).
bool IsLanguage(std::wstring_view primary);

// Counts up with every change of language.
unsigned GetLanguageGeneration();

} // namespace _qv_commonctrl
