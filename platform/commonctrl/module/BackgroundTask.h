// BackgroundTask.h: work on a thread of its own that a window waits for only as long as it likes.
#pragma once

#include "Guards.h"

#include <functional>

namespace _qv_commonctrl {

// Where a task reports its end: a posted message with a number of the caller's as wParam.
struct TaskReport {
    HWND wnd = nullptr; // null: nobody is told
    UINT message = 0;
    UINT id = 0;
};

// A task cannot be ended from outside: whoever loses interest drops the pointer, and the thread, however long
// it hangs, keeps what it works on. The DLL stays loaded as long as a task runs.
class BackgroundTask {
  public:
    // Null when the system has no thread to give; `work` has not run then. What `work` throws ends it.
    static std::shared_ptr<BackgroundTask> Start(std::function<void()> work, const TaskReport& report);
    BackgroundTask(const BackgroundTask&) = delete;
    BackgroundTask& operator=(const BackgroundTask&) = delete;

    // TRUE when the work has ended or the event is set, at once or within the time.
    bool WaitFor(HANDLE event, DWORD milliseconds) const {
        const HANDLE either[] = {m_done.get(), event};
        return WaitForMultipleObjects(2, either, FALSE, milliseconds) < WAIT_OBJECT_0 + 2;
    }
    // TRUE when the work has ended, at once or within the time.
    bool Wait(DWORD milliseconds) const {
        return WaitForSingleObject(m_done.get(), milliseconds) == WAIT_OBJECT_0;
    }

  private:
    BackgroundTask(std::function<void()> work, const TaskReport& report);
    static DWORD WINAPI ThreadProc(void* task);
    void Run();

    std::function<void()> m_work;
    TaskReport m_report;
    Handle m_done;
};

} // namespace _qv_commonctrl
