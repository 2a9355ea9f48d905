// FolderOrder.h: the order in which the entries of a folder are shown.
#pragma once

#include "FolderEntries.h"

namespace _qv_commonctrl {

// A key that compares as bytes as the entries compare for the user: folders before files, each in the user's
// sorting order with numbers by value. Made once an entry, it makes sorting cheap.
std::string FolderSortKey(const FolderEntry& entry);

// Puts entries in the order of their keys; those of equal keys stay in the order they are in.
void SortEntries(std::vector<FolderEntry>& entries);

} // namespace _qv_commonctrl
