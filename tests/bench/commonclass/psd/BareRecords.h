#pragma once

#include "PsdDocuments.h"

// The least that gets the names off a document whose writer is trusted: open the file, go where the records are known to
// stand, read them in pieces of 32 kB, walk each record's blocks to its Unicode name and keep it. No length is checked,
// groups are not told from layers, and a layer without that block is lost.
void readBareRecords(const BenchDocument& document, std::vector<std::wstring>& names);
