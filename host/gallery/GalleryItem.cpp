#include "GalleryItem.h"

#include <algorithm>

namespace {

std::vector<GalleryItem>& MutableItems() {
    static std::vector<GalleryItem> items;
    return items;
}

} // namespace

const std::vector<GalleryItem>& GalleryItems() {
    return MutableItems();
}

GalleryRegistration::GalleryRegistration(const GalleryItem& item) {
    // The order of static objects over source files is not defined: keep the list sorted by what the user sees.
    auto before = [](const GalleryItem& a, const GalleryItem& b) {
        return a.group != b.group ? a.group < b.group : wcscmp(a.name, b.name) < 0;
    };
    auto& items = MutableItems();
    items.insert(std::upper_bound(items.begin(), items.end(), item, before), item);
}
