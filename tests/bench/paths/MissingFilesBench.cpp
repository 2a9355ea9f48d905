// From the call to a painted list of 100,000 missing files: ours against the same dialog template in the bare system,
// its list view filled with redrawing off.
#include "PaintWatch.h"

#include <QVCommonWnd.h>

#include <benchmark/benchmark.h>

using namespace _qv_commonwnd;

namespace {

constexpr double kGoalRatio = 1.2;
constexpr int kFiles = 100000;
constexpr int kShowings = 7;
constexpr UINT kTemplate = 31102;
constexpr int kList = 31104;
constexpr int kColumnPx = 1000;

CStringArray& Paths() {
    static CStringArray paths;
    if (paths.GetSize() == 0) {
        for (int i = 0; i < kFiles; ++i) {
            CString path;
            path.Format(L"\\\\server\\media\\documentary\\harbour\\day %02d\\clip %06d.mxf", i / 5000, i);
            paths.Add(path);
        }
    }
    return paths;
}

template <class Show> void Measure(benchmark::State& state, Show show) {
    CStringArray& paths = Paths();
    for (auto _ : state) {
        const PaintWatch watch(IDOK);
        show(paths);
        if (watch.Seconds() <= 0)
            return state.SkipWithError("the prompt was not painted");
        state.SetIterationTime(watch.Seconds());
    }
}

void Ours(benchmark::State& state) {
    Measure(state, [](CStringArray& paths) {
        CQVFilePathShowTip prompt;
        prompt.SetFile(paths);
        prompt.DoModal();
    });
    state.counters["goal_ratio"] = kGoalRatio;
}

void Fill(HWND list, const CStringArray& paths) {
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = const_cast<LPWSTR>(L"File name");
    column.cx = kColumnPx;
    SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    for (int i = 0; i < kFiles; ++i) {
        LVITEMW item = {};
        item.mask = LVIF_TEXT;
        item.iItem = i;
        item.pszText = const_cast<LPWSTR>(static_cast<LPCWSTR>(paths[i]));
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

INT_PTR CALLBACK BareProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        Fill(GetDlgItem(dialog, kList), *reinterpret_cast<const CStringArray*>(lParam));
        return TRUE;
    }
    if (message == WM_COMMAND) {
        EndDialog(dialog, LOWORD(wParam));
        return TRUE;
    }
    return FALSE;
}

void Bare(benchmark::State& state) {
    Measure(state, [](const CStringArray& paths) {
        DialogBoxParamW(g_hCommonWndInst, MAKEINTRESOURCEW(kTemplate), nullptr, &BareProc,
                        reinterpret_cast<LPARAM>(&paths));
    });
}

BENCHMARK(Bare)
    ->Name("100,000 missing files, call to painted/peer:bare list view")
    ->UseManualTime()
    ->Iterations(kShowings);
BENCHMARK(Ours)->Name("100,000 missing files, call to painted/ours")->UseManualTime()->Iterations(kShowings);

} // namespace
