// QVFolderListing.h: one folder being listed in the background.
#pragma once

#include "QVBackgroundTask.h"
#include "QVFolderEntries.h"

namespace _qv_commonctrl {

class FolderListing {
  public:
    // Null when no thread can be had.
    static std::unique_ptr<FolderListing> Start(FolderRequest request, const TaskReport& report);

    // Whether the listing has ended, at once or within the time. Only then may the others be asked.
    bool Wait(DWORD milliseconds) const { return m_task->Wait(milliseconds); }
    bool Succeeded() const { return m_result->succeeded; }
    const std::vector<FolderEntry>& Entries() const { return m_result->entries; }
    std::vector<FolderEntry>& Entries() { return m_result->entries; }

  private:
    struct Result {
        FolderRequest request;
        std::vector<FolderEntry> entries;
        bool succeeded = false;
    };

    FolderListing() = default;

    std::shared_ptr<Result> m_result;
    std::shared_ptr<BackgroundTask> m_task;
};

// Whether a folder is there, asked in the background. FALSE also when there is no answer within the time.
bool FolderIsThere(const std::wstring& path, DWORD milliseconds);

} // namespace _qv_commonctrl
