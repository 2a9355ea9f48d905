// GalleryItem.h: the entries of the gallery: each opens a window of the library and reports what came back from it.
#pragma once

#include "GalleryContext.h"

#include <vector>

// The groups that the entries stand under, in their order on the window.
enum class GalleryGroup { Files, Folders, Messages, Values, Meters };

struct GalleryItem {
    GalleryGroup group;
    const wchar_t* name;     // stable ASCII name: used in the log and by tours
    const wchar_t* titleKey; // dictionary key of the button's text
    void (*run)(IGalleryContext&);
};

// All entries, in the order in which they are shown. Entries register themselves before main starts.
const std::vector<GalleryItem>& GalleryItems();

// Put one of these, at namespace level, beside an entry's function.
struct GalleryRegistration {
    explicit GalleryRegistration(const GalleryItem& item);
};
