// FolderListing.h: one folder being listed in the background.
#pragma once

#include "module/BackgroundTask.h"
#include "FolderEntries.h"

namespace _qv_commonctrl {

// A listing that is given up ends at its next entry.
class FolderListing {
  public:
    // Null when no thread can be had. The report comes at the end, and in a large folder also on the way,
    // when there are entries to take; the longer it takes the rarer.
    static std::unique_ptr<FolderListing> Start(FolderRequest request, const TaskReport& report);
    ~FolderListing();

    // Whether the listing has ended, at once or within the time.
    bool Wait(DWORD milliseconds) const { return m_task->Wait(milliseconds); }
    // The same, or there are entries to take before the end.
    bool WaitForSome(DWORD milliseconds) const;
    // How it went. To be asked after the end only.
    FolderResult Result() const;
    // The entries that were read and not taken yet, in the order of reading. May be called at any time.
    std::vector<FolderEntry> Take();

  private:
    class Reading;

    FolderListing();

    std::shared_ptr<Reading> m_reading;
    std::shared_ptr<BackgroundTask> m_task;
};

// Whether a folder is there, asked in the background. FALSE also when there is no answer within the time.
bool FolderIsThere(const std::wstring& path, DWORD milliseconds);

} // namespace _qv_commonctrl
