// A worker that reports as fast as it can, while the window runs.
#include "ProgressFixture.h"

#include <atomic>
#include <thread>

using namespace progress_test;

namespace {

constexpr int kReports = 10'000'000;
constexpr int kTexts = 5000;
constexpr int kRange = 1000;
constexpr int kShortRange = 20;

} // namespace

TEST_F(Progress, TenMillionReportsLoseNothing) {
    std::atomic<int> reported{0};
    Run(L"Reports", kRange, 0.001f, [&](Driver& user, HWND window) {
        std::thread worker([&] {
            for (int i = 1; i <= kReports; ++i) {
                const int now = static_cast<int>(static_cast<long long>(i) * (kRange - 1) / kReports);
                CZ5ProgressDlg::SetCurPos(now, kRange);
                reported = i;
            }
        });
        worker.join();
        EXPECT_EQ(kReports, reported);
        WaitBar(user, window, kRange - 1); // the last report is the one that shows
        WaitTicks(user, window, 2);        // and the window still ticks
        EXPECT_EQ(kRange, CZ5ProgressDlg::m_nNextPos);
        CZ5ProgressDlg::EndProgressWnd(1);
    });
}

TEST_F(Progress, AThousandTextsASecondLoseNothing) {
    Run(L"Texts", kRange, 0.0f, [&](Driver& user, HWND window) {
        const HWND message = user.waitControl(window, IDC_PROGRESS_TEXT);
        int wrong = 0;
        std::thread worker([] {
            for (int i = 1; i <= kTexts; ++i) {
                std::wstring text =
                    L"file-" + std::to_wstring(i) + std::wstring(static_cast<size_t>(i % 97), L'-');
                CZ5ProgressDlg::SetTextShow(text.data());
                ::Sleep(1);
            }
            wchar_t last[] = L"last";
            CZ5ProgressDlg::SetTextShow(last);
        });
        user.waitFor(
            "the last text",
            [&] {
                const std::wstring text = textOf(message);
                // Before the first report there is no text; then each text is whole.
                wrong += !(text.find_first_not_of(L'.') == std::wstring::npos || text.find(L"file-") == 0 ||
                           text.find(L"last") == 0);
                return text.find(L"last") == 0;
            },
            qvtest::Milliseconds(25000));
        worker.join();
        EXPECT_EQ(0, wrong);
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
