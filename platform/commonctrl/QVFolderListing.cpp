#include "QVFolderListing.h"

#include "QVModule.h"

#include <atomic>

namespace _qv_commonctrl {

std::unique_ptr<FolderListing> FolderListing::Start(FolderRequest request, const TaskReport& report) {
    std::unique_ptr<FolderListing> listing(new FolderListing);
    listing->m_result = std::make_shared<Result>();
    listing->m_result->request = std::move(request);
    const auto work = [result = listing->m_result] {
        result->succeeded = ListFolder(result->request, result->entries);
    };
    listing->m_task = BackgroundTask::Start(work, report);
    return listing->m_task ? std::move(listing) : nullptr;
}

bool FolderIsThere(const std::wstring& path, DWORD milliseconds) {
    const auto there = std::make_shared<std::atomic<bool>>(false);
    const auto task = BackgroundTask::Start([path, there] { *there = FolderExists(path); }, {});
    return task && task->Wait(milliseconds) && *there;
}

} // namespace _qv_commonctrl
