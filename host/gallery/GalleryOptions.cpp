#include "GalleryOptions.h"

GalleryOptions GalleryOptions::Parse(int argc, wchar_t** argv) {
    GalleryOptions options;
    const struct {
        const wchar_t* name;
        CString GalleryOptions::*field;
    } switches[] = {{L"--lang", &GalleryOptions::language},
                    {L"--skin", &GalleryOptions::skin},
                    {L"--samples", &GalleryOptions::samples},
                    {L"--pictures", &GalleryOptions::pictures},
                    {L"--log", &GalleryOptions::log}};
    for (int i = 1; i + 1 < argc; ++i) {
        for (const auto& entry : switches) {
            if (_wcsicmp(argv[i], entry.name) == 0) {
                options.*entry.field = argv[++i];
                break;
            }
        }
    }
    return options;
}
