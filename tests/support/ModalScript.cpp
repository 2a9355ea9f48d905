#include "ModalScript.h"

#include "Watchdog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

namespace qvtest {
namespace {

constexpr Milliseconds kAfterLastStep{8000};
constexpr Milliseconds kEachMeans{2000};
constexpr Milliseconds kBetweenTries{100};
constexpr UINT_PTR kIdleTimer = 1;
constexpr int kRequestedSerial = 0; // window bytes; the answered one is the user data

// Lives on the thread of the modal loop: runs actions there and tells when its queue is empty.
LRESULT CALLBACK helperProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case Driver::kRunMessage:
        (*reinterpret_cast<const std::function<void()>*>(wParam))();
        return 0;
    case Driver::kSettleMessage:
        SetWindowLongPtrW(window, kRequestedSerial, static_cast<LONG_PTR>(wParam));
        SetTimer(window, kIdleTimer, USER_TIMER_MINIMUM, nullptr);
        return 0;
    case WM_TIMER:
        KillTimer(window, kIdleTimer);
        SetWindowLongPtrW(window, GWLP_USERDATA, GetWindowLongPtrW(window, kRequestedSerial));
        return 0;
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

const wchar_t* helperClass() {
    static const ATOM registered = [] {
        WNDCLASSW wc = {};
        wc.lpfnWndProc = helperProc;
        wc.hInstance = GetModuleHandleW(nullptr);
        wc.lpszClassName = L"QVTestHelper";
        wc.cbWndExtra = sizeof(LONG_PTR);
        return RegisterClassW(&wc);
    }();
    return MAKEINTATOM(registered);
}

std::wstring currentTestName() {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    if (!info)
        return L"no-test";
    std::string name = std::string(info->test_suite_name()) + "." + info->name();
    std::replace(name.begin(), name.end(), '/', '-');
    return toWide(name);
}

// Sent messages of other threads are answered, everything else stays in the queue.
void answerSentMessages() {
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

} // namespace

std::wstring saveFailurePicture() {
    const std::wstring path = picturePath(currentTestName());
    return Picture::ofScreen().save(path) ? path : std::wstring(L"(no picture)");
}

ModalScript::~ModalScript() = default;

ModalScript& ModalScript::step(std::string what, std::function<void(Driver&)> action) {
    m_steps.push_back({std::move(what), std::move(action)});
    return *this;
}

void ModalScript::begin() {
    m_failed = false;
    m_failure.clear();
    m_uiThread = GetCurrentThreadId();
    const DWORD ownMeansMs = static_cast<DWORD>((kAfterLastStep + 4 * kEachMeans).count());
    Watchdog::begin(toUtf8(currentTestName()),
                    std::max(Watchdog::kLimitMs, static_cast<DWORD>(m_limit.count()) + ownMeansMs));
    m_windowsBefore.clear();
    for (HWND window : findWindows({.thread = m_uiThread, .visible = false}))
        m_windowsBefore.insert(window);
    m_helper = CreateWindowExW(0, helperClass(), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                               GetModuleHandleW(nullptr), nullptr);
    m_ended = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    m_stepsDone = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    m_watchDone = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    m_stepThread = std::thread([this] { runSteps(); });
    m_watchThread = std::thread([this] { watch(); });
}

void ModalScript::end() {
    SetEvent(m_ended);
    joinPumping(m_stepThread, m_stepsDone);
    joinPumping(m_watchThread, m_watchDone);
    DestroyWindow(m_helper);
    CloseHandle(m_ended);
    CloseHandle(m_stepsDone);
    CloseHandle(m_watchDone);
    m_steps.clear();
}

// The other thread may still be asking this one's windows.
void ModalScript::joinPumping(std::thread& thread, HANDLE done) {
    while (MsgWaitForMultipleObjects(1, &done, FALSE, INFINITE, QS_SENDMESSAGE) != WAIT_OBJECT_0)
        answerSentMessages();
    thread.join();
}

void ModalScript::runSteps() {
    Driver driver(m_helper, m_ended);
    std::string running;
    try {
        for (const Step& it : m_steps) {
            running = it.what;
            Watchdog::note("step '" + running + "'");
            it.action(driver);
        }
    } catch (const std::exception& problem) {
        report("step '" + running + "': " + problem.what());
    }
    SetEvent(m_stepsDone);
}

// The body gets the whole time limit for its steps, and a short while after the last one.
void ModalScript::watch() {
    const HANDLE either[] = {m_ended, m_stepsDone};
    if (WaitForMultipleObjects(2, either, FALSE, static_cast<DWORD>(m_limit.count())) == WAIT_TIMEOUT)
        report("the body still runs after " + std::to_string(m_limit.count()) + " ms");
    else if (const Milliseconds grace = std::min(kAfterLastStep, m_limit); !m_failed && !waitEnded(grace))
        report("the body still runs " + std::to_string(grace.count()) + " ms after the last step");
    if (m_failed && !waitEnded(Milliseconds(0)))
        closeWindows();
    SetEvent(m_watchDone);
}

bool ModalScript::waitEnded(Milliseconds time) const {
    return WaitForSingleObject(m_ended, static_cast<DWORD>(time.count())) == WAIT_OBJECT_0;
}

void ModalScript::report(const std::string& why) {
    if (m_failed.exchange(true))
        return;
    const std::string picture = toUtf8(saveFailurePicture());
    m_failure = why;
    for (HWND window : openedWindows())
        m_failure += "\nopen: " + describeWindow(window);
    if (m_reportFailures)
        ADD_FAILURE() << m_failure << "\npicture: " << picture;
}

std::vector<HWND> ModalScript::openedWindows() const {
    std::vector<HWND> opened;
    for (HWND window : findWindows({.thread = m_uiThread})) {
        if (!m_windowsBefore.count(window))
            opened.push_back(window);
    }
    return opened;
}

bool ModalScript::closeBy(const std::function<void(HWND)>& means) {
    const auto deadline = std::chrono::steady_clock::now() + kEachMeans;
    while (std::chrono::steady_clock::now() < deadline) {
        for (HWND window : openedWindows()) {
            if (IsWindowEnabled(window))
                means(window);
        }
        if (waitEnded(kBetweenTries))
            return true;
    }
    return false;
}

// From the polite to the last means.
void ModalScript::closeWindows() {
    if (closeBy([](HWND window) { PostMessageW(window, WM_CLOSE, 0, 0); }) ||
        closeBy([](HWND window) { PostMessageW(window, WM_COMMAND, IDCANCEL, 0); }) ||
        closeBy([this](HWND window) {
            const std::function<void()> destroy = [window] { DestroyWindow(window); };
            SendMessageTimeoutW(m_helper, Driver::kRunMessage, reinterpret_cast<WPARAM>(&destroy), 0,
                                SMTO_NORMAL, static_cast<UINT>(kEachMeans.count()), nullptr);
        }))
        return;
    PostThreadMessageW(m_uiThread, WM_QUIT, 0, 0);
    if (waitEnded(kEachMeans))
        return;
    std::printf("the body cannot be ended: %s\n", m_failure.c_str());
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), kHungExitCode);
}

} // namespace qvtest
