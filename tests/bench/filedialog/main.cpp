#include <benchmark/benchmark.h>

#include <windows.h>
#include <objbase.h>

void RegisterFolderBenchmarks();

int main(int argc, char** argv) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    benchmark::Initialize(&argc, argv);
    RegisterFolderBenchmarks();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    CoUninitialize();
    return 0;
}
