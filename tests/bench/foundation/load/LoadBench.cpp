// Loading and unloading the product with what it pulls in, against an empty DLL with the same imports.
#include <benchmark/benchmark.h>

#include <windows.h>

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

void LoadAndFree(benchmark::State& state, const std::wstring& file) {
    SetDllDirectoryW(LibraryFolder().c_str());
    for (auto _ : state) {
        const HMODULE library = LoadLibraryW(file.c_str());
        if (!library || !FreeLibrary(library))
            return state.SkipWithError("the library cannot be loaded");
    }
    if (GetModuleHandleW(L"AfxFrameU.dll"))
        state.SkipWithError("the library stayed in the process");
}

void Empty(benchmark::State& state) {
    LoadAndFree(state, ProgramFolder() + L"\\foundation_empty.dll");
}

void Ours(benchmark::State& state) {
    LoadAndFree(state, LibraryFolder() + L"\\QVCommonWndU.dll");
    state.counters["goal_ratio"] = kGoalRatio;
}

// The first load of a process fills the system's caches; it counts for nobody.
void WarmUp(benchmark::State& state) {
    Empty(state);
    Ours(state);
}

BENCHMARK(WarmUp)->Name("load, first of the process")->UseRealTime()->Iterations(1);
BENCHMARK(Empty)->Name("load and unload/peer:empty DLL, same imports")->UseRealTime()->Iterations(kLoads);
BENCHMARK(Ours)->Name("load and unload/ours")->UseRealTime()->Iterations(kLoads);

} // namespace

BENCHMARK_MAIN();
