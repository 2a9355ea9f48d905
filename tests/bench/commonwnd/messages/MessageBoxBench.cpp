// From the call to a painted box: ours against the system's message box with the same texts and buttons.
#include "PaintWatch.h"

#include <InTurn.h>
#include <QVCommonWnd.h>

using namespace _qv_commonwnd;

namespace {

constexpr double kGoalRatio = 2;
constexpr int kYesButtonId = 31095;
constexpr int kShowings = 60;
constexpr wchar_t kTitle[] = L"Project";
constexpr wchar_t kQuestion[] = L"Replace the clip in every sequence?";

template <class Show> double SecondsToPaint(int closeCommand, Show show) {
    const PaintWatch watch(closeCommand);
    show();
    return watch.Seconds();
}

double Ours() {
    return SecondsToPaint(kYesButtonId, [] { QV_MessageBox(kTitle, kQuestion, 0, nullptr); });
}

double System() {
    return SecondsToPaint(IDYES, [] { ::MessageBoxW(nullptr, kQuestion, kTitle, MB_YESNO); });
}

[[maybe_unused]] const bool g_registered =
    registerInTurn({"message box, call to painted", "system box", kShowings, kGoalRatio}, System, Ours);

} // namespace
