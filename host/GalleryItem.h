// GalleryItem.h: one entry of the gallery: a window of the library that can be opened and what came back from
// it.
#pragma once

#include <QVCommonWnd.h>
#include <QVDict.h>
#include <QVSkin.h>

#include <string>
#include <vector>

// What an entry may use while it runs.
class IGalleryContext {
  public:
    virtual ~IGalleryContext() = default;
    // The gallery's main window, the parent for the windows that take one.
    virtual CWnd* MainWnd() = 0;
    // A folder with real files (pictures, sound, text, a layered document); without a trailing backslash.
    virtual CString SampleFolder() = 0;
    // Adds one line to the result list and to the log file: what was answered, by name.
    virtual void Report(LPCWSTR name, const CString& value) = 0;
};

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
