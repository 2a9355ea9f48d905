// From the call to a painted list of 100,000 missing files: ours against the same dialog template in the bare system,
// its list view filled with redrawing off.
#include "PaintWatch.h"

#include <InTurn.h>
#include <QVCommonWnd.h>

using namespace _qv_commonwnd;

namespace {

constexpr double kGoalRatio = 1.2;
constexpr int kFiles = 100000;
constexpr int kShowings = 11;
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

// Zero when the prompt was not painted.
double Ours() {
    const PaintWatch watch(IDOK);
    CQVFilePathShowTip prompt;
    prompt.SetFile(Paths());
    prompt.DoModal();
    return watch.Seconds();
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
    // The rows go at once, or closing takes many times as long as opening.
    if (message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lParam)->code == LVN_DELETEALLITEMS) {
        SetWindowLongPtrW(dialog, DWLP_MSGRESULT, TRUE);
        return TRUE;
    }
    if (message == WM_COMMAND) {
        EndDialog(dialog, LOWORD(wParam));
        return TRUE;
    }
    return FALSE;
}

double Bare() {
    const PaintWatch watch(IDOK);
    DialogBoxParamW(g_hCommonWndInst, MAKEINTRESOURCEW(kTemplate), nullptr, &BareProc,
                    reinterpret_cast<LPARAM>(&Paths()));
    return watch.Seconds();
}

[[maybe_unused]] const bool g_registered = registerInTurn(
    {"100,000 missing files, call to painted", "list view", kShowings, kGoalRatio}, Bare, Ours);

} // namespace
