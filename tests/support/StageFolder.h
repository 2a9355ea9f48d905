// The staged tree that the test program belongs to.
#pragma once

#include <windows.h>

#include <string>

// The folder build\stage, found from where the program lies (build\PRESET\tests).
inline std::wstring stageFolder() {
    wchar_t path[1024] = L"";
    GetModuleFileNameW(nullptr, path, 1024);
    std::wstring folder = path;
    constexpr int kPartsAbove = 3; // program, tests, PRESET
    for (int i = 0; i < kPartsAbove; ++i)
        folder.resize(folder.find_last_of(L'\\'));
    return folder + L"\\stage";
}
