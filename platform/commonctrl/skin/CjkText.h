// CjkText.h: which texts need a font with Chinese, Japanese or Korean characters.
#pragma once

namespace _qv_commonctrl {

// Whether a text holds a Chinese, Japanese or Korean character.
bool HasCjkCharacter(const wchar_t* text);

} // namespace _qv_commonctrl
