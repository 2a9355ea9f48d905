// ImageCodec.h: decodes images with the system's codecs.
#pragma once

#include "paint/Pixels.h"

#include <string>
#include <string_view>

namespace _qv_commonctrl {

// Decode the first frame of an image file or of its bytes. Empty when it cannot be read, is no image, or is
// larger than kMaxImageSidePx or kMaxImagePixels. Works on a thread with or without COM, and leaves it as it
// was.
Pixels DecodeImageFile(const std::wstring& path);
Pixels DecodeImageBytes(std::string_view bytes);

} // namespace _qv_commonctrl
