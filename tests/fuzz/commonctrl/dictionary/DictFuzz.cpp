// Feeds the dictionary parser with any bytes.
#include "dictionary/DictParse.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace _qv_commonctrl;
    for (const auto& [key, text] : ParseDict({reinterpret_cast<const char*>(data), size})) {
        if (key.empty() || key.size() > kMaxDictKeyUnits || text.size() > kMaxDictTextUnits ||
            text.find(u'\0') != std::u16string::npos)
            std::abort();
    }
    return 0;
}
