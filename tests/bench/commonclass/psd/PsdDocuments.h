#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A document on disk to read names from, and where its layer records stand in it.
struct BenchDocument {
    std::string title;
    std::wstring path;
    int layers = 0;
    std::uint64_t recordsBegin = 0;
    std::uint64_t recordsEnd = 0;
    double goalToRegistryPeer = 0; // our time to that of the fastest ready-made reader: at most this
};

// Writes the documents into a folder that it makes, and a list of them: 43 MB of pixels, 1,000 and 8,000 layers, a .psd
// of 1.5 GB and a .psb of 3.2 GB. All pixels are a hole in the file, which reads as black. False when the disk refuses.
bool writeBenchDocuments(const std::wstring& folder);

// The documents by the list in that folder; none when it is not there.
std::vector<BenchDocument> listBenchDocuments(const std::wstring& folder);
