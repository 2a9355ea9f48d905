// The names of a Photoshop document's layers.
#pragma once

#include "ByteSource.h"
#include "LegacyDecoder.h"
#include "NameSink.h"

namespace _qv_commonclass::psd {

enum class ReadResult {
    Done,
    NotPhotoshop, // another kind of file, or a header that no Photoshop document has
    Damaged,      // lengths or signatures that do not fit together, or a file that ends too early
    TooLarge,     // more names or tagged blocks than any real document holds
    Unreadable    // the source gave fewer bytes than it promised: a read error, or a shrinking file
};

// Longer names are cut here; the program that owns the format allows 255 UTF-16 units.
inline constexpr std::size_t kMaxNameUnits = 4096;

// UTF-16 units of all names together: room for as many layers as a document can have, each with the longest
// name.
inline constexpr std::size_t kMaxNameUnitsTotal = 8 * 1024 * 1024;

// Reads the layer names of a Photoshop document in stored order, the bottom layer first; headers and ends of
// groups are left out. sink gets the names as they are met; unless the result is Done, what it got is to be
// thrown away. A document without layers is Done with no name. Throws nothing but what the sink throws and
// std::bad_alloc. Work and memory are bounded by the layer records: of everything else only the lengths are
// read.
//
//     Names names; // a NameSink
//     if (readLayerNames(source, decoder, names) == ReadResult::Done)
//         use(names);
ReadResult readLayerNames(ByteSource& source, const LegacyDecoder& decoder, NameSink& sink);

} // namespace _qv_commonclass::psd
