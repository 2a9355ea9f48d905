// The names of a Photoshop document's layers: the reader over its window of bytes.
#include "LayerNames.h"
#include "DocumentReader.h"

namespace _qv_commonclass::psd {

ReadResult readLayerNames(ByteSource& source, const LegacyDecoder& decoder, NameSink& sink) {
    ReadWindow window(source);
    const ReadResult result = DocumentReader(window, decoder, sink).read();
    return window.failed() ? ReadResult::Unreadable : result;
}

} // namespace _qv_commonclass::psd
