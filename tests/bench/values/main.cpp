#include <benchmark/benchmark.h>

#include <afxwin.h>
#include <commctrl.h>

int main(int argc, char** argv) {
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&controls);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
