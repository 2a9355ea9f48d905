// Drives a dialog while it runs its own modal loop. The steps run one after the other on a second thread, as
// a user beside the program would act; the body runs on the calling thread.
//
//   ModalScript script;
//   script.step("answer yes", [](Driver& user) {
//       HWND box = user.waitWindow({.title = L"Question"});
//       EXPECT_EQ(L"Save?", user.text(box, IDC_TEXT));
//       user.click(box, IDYES);
//   });
//   EXPECT_EQ(IDYES, script.run([&] { return dialog.DoModal(); }));
//
// A step that fails, a body that does not end soon after the last step and a body that outlives the time
// limit all fail the test, leave a picture of the screen in build/test-pictures and have their windows
// closed; when not even that ends the body, the process ends with exit code 70. After a failed step the later
// ones are left out.
#pragma once

#include "Driver.h"

#include <atomic>
#include <functional>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace qvtest {

class ModalScript {
  public:
    static constexpr Milliseconds kBodyLimit{30000};

    // limit: of the whole body
    explicit ModalScript(Milliseconds limit = kBodyLimit) : m_limit(limit) {}
    ModalScript(const ModalScript&) = delete;
    ModalScript& operator=(const ModalScript&) = delete;
    ~ModalScript();

    ModalScript& step(std::string what, std::function<void(Driver&)> action);

    // Runs the body with the steps beside it and returns what the body returns. The steps are used up.
    template <class Body> auto run(Body&& body) {
        Scope scope(*this);
        return std::forward<Body>(body)();
    }

    // Whether everything of the last run went well; a death test of the driver itself asks this.
    bool failed() const { return m_failed; }

    // What went wrong in the last run, empty when nothing did.
    const std::string& failure() const { return m_failure; }

    // Problems are kept in failure() and are no test failure: for tests of the driver itself.
    void keepFailures() { m_reportFailures = false; }

    static constexpr UINT kHungExitCode = 70;

  private:
    struct Step {
        std::string what;
        std::function<void(Driver&)> action;
    };
    class Scope {
      public:
        explicit Scope(ModalScript& script) : m_script(script) { m_script.begin(); }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope() { m_script.end(); }

      private:
        ModalScript& m_script;
    };

    void begin();
    void end();
    void runSteps();
    void watch();
    bool waitEnded(Milliseconds time) const;
    void report(const std::string& why);
    void closeWindows();
    bool closeBy(const std::function<void(HWND)>& means);
    std::vector<HWND> openedWindows() const;
    void joinPumping(std::thread& thread, HANDLE done);

    Milliseconds m_limit;
    std::vector<Step> m_steps;
    HWND m_helper = nullptr;
    HANDLE m_ended = nullptr;
    HANDLE m_stepsDone = nullptr;
    HANDLE m_watchDone = nullptr;
    DWORD m_uiThread = 0;
    std::set<HWND> m_windowsBefore;
    std::thread m_stepThread;
    std::thread m_watchThread;
    std::atomic<bool> m_failed{false};
    std::string m_failure;
    bool m_reportFailures = true;
};

// Runs a body with one step beside it: what the user does meanwhile.
//
//   EXPECT_EQ(IDOK, runBeside([&] { return dialog.DoModal(); }, [](Driver& user) { user.enter(); }));
template <class Body>
auto runBeside(Body&& body, std::function<void(Driver&)> act, Milliseconds limit = ModalScript::kBodyLimit) {
    ModalScript script(limit);
    script.step("use the window", std::move(act));
    return script.run(std::forward<Body>(body));
}

// The same for a user who begins with the window that the body opens.
template <class Body>
auto runBeside(Body&& body, const WindowQuery& opened, const std::function<void(Driver&, HWND)>& act) {
    return runBeside(std::forward<Body>(body), [&](Driver& user) { act(user, user.waitWindow(opened)); });
}

// Writes a picture of the whole screen, named after the running test; returns its path.
std::wstring saveFailurePicture();

} // namespace qvtest
