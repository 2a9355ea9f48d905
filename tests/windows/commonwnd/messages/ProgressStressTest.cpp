// A worker that reports as fast as it can, while the window runs.
#include "ProgressFixture.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

using namespace progress_test;

namespace {

constexpr int kReports = 10'000'000;
constexpr double kLeastReportsPerSecond = 1'000'000;
constexpr int kTexts = 5000;
constexpr int kTextsPerSecond = 1000;
constexpr int kRange = 1000;
constexpr int kShortRange = 20;

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// The text that a worker tells as its number so and so.
std::wstring TextNumber(int number) {
    return L"file-" + std::to_wstring(number) + std::wstring(static_cast<size_t>(number % 97), L'-');
}

// The number of a shown text; 0 before the first one, -1 for a text that nobody has told.
int NumberOf(const std::wstring& shown) {
    const std::wstring told =
        shown.substr(0, shown.find_last_not_of(L'.') + 1); // the rest are the window's dots
    if (told.empty())
        return 0;
    if (told == L"last")
        return kTexts + 1;
    const int number =
        told.find(L"file-") == 0 ? static_cast<int>(wcstol(told.c_str() + 5, nullptr, 10)) : -1;
    return number > 0 && told == TextNumber(number) ? number : -1;
}

} // namespace

TEST_F(Progress, TenMillionReportsLoseNothing) {
    std::atomic<int> reported{0};
    Run(L"Reports", kRange, 0.001f, [&](Driver& user, HWND window) {
        double seconds = 0;
        std::thread worker([&] {
            const Clock::time_point start = Clock::now();
            for (int i = 1; i <= kReports; ++i) {
                const int now = static_cast<int>(static_cast<long long>(i) * (kRange - 1) / kReports);
                CZ5ProgressDlg::SetCurPos(now, kRange);
                reported = i;
            }
            seconds = SecondsSince(start);
        });
        worker.join();
        EXPECT_EQ(kReports, reported);
        EXPECT_LT(kLeastReportsPerSecond, kReports / seconds);
        WaitBar(user, window, kRange - 1); // the last report is the one that shows
        WaitTicks(user, window, 2);        // and the window still ticks
        EXPECT_EQ(kRange, CZ5ProgressDlg::m_nNextPos);
        CZ5ProgressDlg::EndProgressWnd(1);
    });
}

TEST_F(Progress, AThousandTextsASecondLoseNothing) {
    Run(L"Texts", kRange, 0.0f, [&](Driver& user, HWND window) {
        const HWND message = user.waitControl(window, IDC_PROGRESS_TEXT);
        double seconds = 0;
        std::thread worker([&] {
            const Clock::time_point start = Clock::now();
            for (int i = 1; i <= kTexts; ++i) {
                std::wstring text = TextNumber(i);
                CZ5ProgressDlg::SetTextShow(text.data());
                if (SecondsSince(start) * kTextsPerSecond < i) // late: the next ones follow at once
                    ::Sleep(1);
            }
            seconds = SecondsSince(start);
            wchar_t last[] = L"last";
            CZ5ProgressDlg::SetTextShow(last);
        });
        int shown = 0;
        int wrong = 0;
        user.waitFor(
            "the last text",
            [&] {
                wchar_t text[512] = L""; // in one message: asked for its length first, it may grow in between
                user.send(message, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
                const int number = NumberOf(text);
                wrong += number < shown; // torn, or older than the one before
                shown = std::max(shown, number);
                return shown > kTexts;
            },
            qvtest::Milliseconds(25000));
        worker.join();
        EXPECT_EQ(0, wrong);
        EXPECT_LT(0.9 * kTextsPerSecond, kTexts / seconds);
        CZ5ProgressDlg::EndProgressWnd(1);
    });
    EXPECT_STREQ(L"last", CZ5ProgressDlg::strText);
}

// Workers that are at it already when the window comes, and still when it goes.
TEST_F(Progress, WorkersOutliveWindows) {
    std::atomic<bool> stop{false};
    std::atomic<int> rounds{0};
    std::vector<std::thread> workers;
    for (int worker = 0; worker < 2; ++worker) {
        workers.emplace_back([&, worker] {
            while (!stop) {
                std::wstring text = L"worker " + std::to_wstring(worker) + std::wstring(200, L'x');
                CZ5ProgressDlg::SetTextShow(text.data());
                CZ5ProgressDlg::SetCurPos(++rounds % kRange, kRange);
                if (CZ5ProgressDlg::Exist())
                    stop = true;
                ::Sleep(0);
            }
        });
    }
    CZ5ProgressDlg::EndProgressWnd(1); // each window closes at its first tick
    for (int window = 0; window < 20; ++window) {
        wchar_t title[] = L"Short";
        CZ5ProgressDlg::ProgressWndDoModle(title, kShortRange, 1.0f);
    }
    stop = true;
    for (std::thread& worker : workers)
        worker.join();
    EXPECT_LT(0, rounds);
    wchar_t text[] = L"afterwards";
    CZ5ProgressDlg::SetTextShow(text);
    EXPECT_STREQ(L"afterwards", CZ5ProgressDlg::strText); // no late text of a worker stands behind it
    SteppedWindow next(text, kRange, 0.0f);
    EXPECT_EQ(L"afterwards", next.Message());
}
