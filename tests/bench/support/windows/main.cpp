// The entry of benchmarks that show windows.
#include <benchmark/benchmark.h>

#include <windows.h>
#include <commctrl.h>
#include <objbase.h>

int main(int argc, char** argv) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_WIN95_CLASSES | ICC_USEREX_CLASSES};
    InitCommonControlsEx(&controls);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    CoUninitialize();
    return 0;
}
