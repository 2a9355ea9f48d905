// Uses the product as a host's own library does: shows a message box and answers it, makes a file dialog
// object. Loaded and freed by the tests, so that the product comes and goes with it.
#include <QVCommonWnd.h>

using namespace _qv_commonwnd;

namespace {

constexpr wchar_t kTitle[] = L"Box of the module user";
constexpr UINT kPollMs = 10;
constexpr int kYesButtonId = 31095;

// Not before the box is on the screen with everything painted, so that each visit uses the same of the system.
void CALLBACK AnswerYes(HWND, UINT, UINT_PTR, DWORD) {
    const HWND box = ::FindWindowW(nullptr, kTitle);
    if (!::IsWindowVisible(box))
        return;
    ::RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::PostMessageW(box, WM_COMMAND, MAKEWPARAM(kYesButtonId, BN_CLICKED), 0);
}

} // namespace

// Answers what the message box answered, plus 100 when the file dialog object is as it should be.
extern "C" __declspec(dllexport) UINT UseCommonWnd();

UINT UseCommonWnd() {
    QV_InitCommonWnd();
    const UINT_PTR timer = ::SetTimer(nullptr, 0, kPollMs, AnswerYes);
    UINT result = QV_MessageBox(kTitle, L"Is anybody there?", 0, nullptr);
    ::KillTimer(nullptr, timer);
    CQVFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT, L"All|*.*|", nullptr, 0, FALSE, FALSE,
                         FDO_KEEPOK);
    if (dialog.GetSelTpye() == eSelFile)
        result += 100;
    QV_ReleaseCommonWnd();
    return result;
}
