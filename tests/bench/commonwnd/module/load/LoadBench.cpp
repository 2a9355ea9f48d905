// Loading and unloading the product with what it pulls in, against an empty DLL with the same imports.
#include "InTurn.h"

#include <benchmark/benchmark.h>

#include <windows.h>

#include <chrono>
#include <string>

namespace {

constexpr double kGoalRatio = 1.5;
constexpr int kLoads = 40;

std::wstring ProgramFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.rfind(L'\\'));
}

const std::wstring& LibraryFolder() {
    static const std::wstring folder = ProgramFolder() + L"\\..\\..\\stage\\bin";
    return folder;
}

// Zero when the library cannot be loaded, or stays.
double LoadAndFree(const std::wstring& file) {
    SetDllDirectoryW(LibraryFolder().c_str());
    const auto start = std::chrono::steady_clock::now();
    const HMODULE library = LoadLibraryW(file.c_str());
    if (!library || !FreeLibrary(library))
        return 0;
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    return GetModuleHandleW(L"AfxFrameU.dll") ? 0 : taken.count();
}

[[maybe_unused]] const bool g_registered = registerInTurn(
    {"load and unload", "empty DLL, same imports", kLoads, kGoalRatio},
    [] { return LoadAndFree(ProgramFolder() + L"\\bench_commonwnd_module_load_empty.dll"); },
    [] { return LoadAndFree(LibraryFolder() + L"\\QVCommonWndU.dll"); });

} // namespace

BENCHMARK_MAIN();
