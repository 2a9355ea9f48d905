#include "FolderOrder.h"

#include <algorithm>
#include <numeric>

namespace _qv_commonctrl {

namespace {

constexpr char kFolderMark = '\1'; // the first byte of a key
constexpr char kFileMark = '\2';

} // namespace

std::string FolderSortKey(const FolderEntry& entry) {
    const std::wstring& name = entry.name;
    char key[1024];
    key[0] = entry.kind == FolderKind::File ? kFileMark : kFolderMark;
    constexpr DWORD kPlain = LCMAP_SORTKEY | NORM_IGNORECASE;
    for (const DWORD flags : {kPlain | SORT_DIGITSASNUMBERS, kPlain}) {
        const int length =
            LCMapStringEx(LOCALE_NAME_USER_DEFAULT, flags, name.c_str(), static_cast<int>(name.size()),
                          reinterpret_cast<LPWSTR>(key + 1), sizeof(key) - 1, nullptr, nullptr, 0);
        if (length > 0)
            return std::string(key, static_cast<std::size_t>(length) + 1);
    }
    return key[0] + std::string(reinterpret_cast<const char*>(name.data()), name.size() * sizeof(wchar_t));
}

void SortEntries(std::vector<FolderEntry>& entries) {
    std::vector<std::size_t> order(entries.size()); // entries are large: they move once
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&entries](std::size_t a, std::size_t b) {
        return entries[a].sortKey < entries[b].sortKey;
    });
    std::vector<FolderEntry> sorted;
    sorted.reserve(entries.size());
    for (const std::size_t index : order)
        sorted.push_back(std::move(entries[index]));
    entries.swap(sorted);
}

} // namespace _qv_commonctrl
