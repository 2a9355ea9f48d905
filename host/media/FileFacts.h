// FileFacts.h: what can be said of a file or folder in a few lines.
#pragma once

#include "PixelBitmap.h"
#include "SoundOutline.h"

#include <vector>

enum class FileKind { Missing, Folder, Picture, LayeredDocument, Sound, Other };

struct FileFacts {
    FileKind kind = FileKind::Missing;
    CString name;                // without its folder
    CSize pixels;                // pictures and layered documents
    int bits = 0;                // of a channel of a layered document, of a sample of a sound
    std::vector<CString> layers; // of a layered document, the bottom layer first
    int channels = 0;            // of a sound
    int samplesPerSecond = 0;
    int milliseconds = 0; // length of a sound
    SoundOutline outline; // of a sound, empty when its samples cannot be read
    LONGLONG bytes = 0;   // size of a file; number of files of a folder

    // One line that is the same in every language, for the log.
    CString Summary() const;
    // The lines to show, in the current language; the first is the name.
    std::vector<CString> Lines() const;
};

// Looks at what `path` names. For a picture `thumbnail` gets a bitmap that fits `most`; it is empty for everything else.
// A sound's outline gets as many columns as `most` is wide. What cannot be read is Missing; a broken file of a known
// kind is Other.
FileFacts ReadFileFacts(const CString& path, CSize most, CPixelBitmap& thumbnail);
