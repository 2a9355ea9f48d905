#include "LayerNames.h"
#include "DocumentReader.h"
#include <utility>

namespace _qv_commonclass::psd {

ReadResult readLayerNames(ByteSource& source, const LegacyDecoder& decoder, NameList& names) {
    ReadWindow window(source);
    NameList read;
    const ReadResult result = DocumentReader(window, decoder).read(read);
    if (window.failed())
        return ReadResult::Unreadable;
    if (result == ReadResult::Done)
        names = std::move(read);
    return result;
}

} // namespace _qv_commonclass::psd
