// GalleryOptions.h: the gallery's command line.
#pragma once

#include <afxwin.h>

//     QVGallery.exe [--lang zh-CN] [--skin dark|light] [--samples FOLDER] [--log FILE] [--pictures FOLDER]
struct GalleryOptions {
    CString language; // empty: the user's own
    CString skin;     // name of a folder below `skin`; empty: dark
    CString samples;  // folder with files to open; empty: the user's documents
    CString pictures; // existing folder for pictures of windows that are asked for; empty: none
    CString log;      // UTF-8 file to which every result line is appended; empty: none

    // Unknown words are ignored; a switch without its value counts as absent.
    static GalleryOptions Parse(int argc, wchar_t** argv);
};
