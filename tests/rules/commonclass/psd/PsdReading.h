#pragma once

#include "documents/CollectedNames.h"
#include "documents/Everything.h"
#include "documents/MemorySource.h"
#include "documents/TableDecoder.h"
#include "psd/LayerNames.h"
#include <ostream>

// What the tables of this folder compare.
namespace psdtest {

using _qv_commonclass::psd::ReadResult;
using Names = std::vector<std::u16string>;

struct Reading {
    ReadResult result = ReadResult::Unreadable;
    Names names;
    std::uint64_t bytesRead = 0;
    std::uint64_t reads = 0;
};

inline Reading readFrom(_qv_commonclass::psd::ByteSource& source) {
    Reading reading;
    CollectedNames collected;
    reading.result = _qv_commonclass::psd::readLayerNames(source, TableDecoder(), collected);
    if (reading.result == ReadResult::Done)
        reading.names = collected.names();
    return reading;
}

inline Reading readBytes(const Bytes& bytes) {
    MemorySource source(bytes);
    Reading reading = readFrom(source);
    reading.bytesRead = source.bytesRead;
    reading.reads = source.reads;
    return reading;
}

inline Reading readDocument(const Document& document) {
    return readBytes(build(document).bytes);
}

} // namespace psdtest

namespace _qv_commonclass::psd {

inline std::ostream& operator<<(std::ostream& out, ReadResult result) {
    constexpr const char* names[] = {"Done", "NotPhotoshop", "Damaged", "TooLarge", "Unreadable"};
    return out << names[static_cast<int>(result)];
}

} // namespace _qv_commonclass::psd
