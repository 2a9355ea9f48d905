#include "BackgroundTask.h"

#include "OwnModule.h"

#include <exception>

namespace _qv_commonctrl {

BackgroundTask::BackgroundTask(std::function<void()> work, const TaskReport& report)
    : m_work(std::move(work)), m_report(report), m_done(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
}

std::shared_ptr<BackgroundTask> BackgroundTask::Start(std::function<void()> work, const TaskReport& report) {
    std::shared_ptr<BackgroundTask> task(new BackgroundTask(std::move(work), report));
    HMODULE module = nullptr;
    if (!task->m_done || !GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                                             reinterpret_cast<LPCWSTR>(&BackgroundTask::ThreadProc), &module))
        return nullptr;
    auto* const share = new std::shared_ptr<BackgroundTask>(task);
    const HANDLE thread = CreateThread(nullptr, 0, &BackgroundTask::ThreadProc, share, 0, nullptr);
    if (!thread) {
        delete share;
        FreeLibrary(module);
        return nullptr;
    }
    CloseHandle(thread);
    return task;
}

DWORD WINAPI BackgroundTask::ThreadProc(void* parameter) {
    {
        const std::unique_ptr<std::shared_ptr<BackgroundTask>> share(
            static_cast<std::shared_ptr<BackgroundTask>*>(parameter));
        (*share)->Run();
    }
    FreeLibraryAndExitThread(GetOwnModule(), 0);
}

void BackgroundTask::Run() {
    const QuietDrives quiet;
    try {
        m_work();
    } catch (const std::exception&) { // memory ran out: the result stays what it is
    }
    SetEvent(m_done.get());
    if (m_report.wnd)
        PostMessageW(m_report.wnd, m_report.message, m_report.id, 0);
}

} // namespace _qv_commonctrl
