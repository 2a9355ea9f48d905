#include "FolderListing.h"

#include "FolderPath.h"
#include "module/Files.h"

#include <algorithm>
#include <atomic>
#include <mutex>

namespace _qv_commonctrl {

namespace {

// What is worth showing before the end. Each showing costs time that grows with all that is shown: so do the
// steps.
constexpr std::size_t kFirstStep = 500;   // entries
constexpr std::size_t kGrowthDivisor = 2; // by half of what is shown

} // namespace

// What the worker and the window share.
class FolderListing::Reading {
  public:
    Reading(FolderRequest request, const TaskReport& report)
        : m_request(std::move(request)), m_report(report) {}

    void Run() {
        m_result = ListFolder(m_request, [this](FolderEntry&& entry) { return Add(std::move(entry)); });
    }

    std::vector<FolderEntry> Take() {
        std::vector<FolderEntry> taken;
        const std::scoped_lock lock(m_mutex);
        taken.swap(m_ready);
        m_taken += taken.size();
        m_reported = false;
        return taken;
    }

    FolderResult Result() const { return m_result; }
    HANDLE Some() const { return m_some.get(); }
    void Abandon() { m_abandoned = true; }

  private:
    // The window hears of new entries when it has taken those of the last time: it sets the pace.
    bool Add(FolderEntry&& entry) {
        if (m_abandoned)
            return false;
        const std::scoped_lock lock(m_mutex);
        m_ready.push_back(std::move(entry));
        if (m_reported || m_ready.size() < std::max(kFirstStep, m_taken / kGrowthDivisor))
            return true;
        m_reported = true;
        SetEvent(m_some.get());
        if (m_report.wnd)
            PostMessageW(m_report.wnd, m_report.message, m_report.id, 0);
        return true;
    }

    FolderRequest m_request;
    TaskReport m_report;
    Handle m_some{CreateEventW(nullptr, TRUE, FALSE, nullptr)}; // there are entries worth showing
    std::mutex m_mutex;
    std::vector<FolderEntry> m_ready; // read and not taken
    std::size_t m_taken = 0;
    bool m_reported = false;
    std::atomic<FolderResult> m_result = FolderResult();
    std::atomic<bool> m_abandoned = false;
};

FolderListing::FolderListing() = default;

FolderListing::~FolderListing() {
    m_reading->Abandon();
}

std::unique_ptr<FolderListing> FolderListing::Start(FolderRequest request, const TaskReport& report) {
    std::unique_ptr<FolderListing> listing(new FolderListing);
    listing->m_reading = std::make_shared<Reading>(std::move(request), report);
    listing->m_task = BackgroundTask::Start([reading = listing->m_reading] { reading->Run(); }, report);
    return listing->m_task ? std::move(listing) : nullptr;
}

FolderResult FolderListing::Result() const {
    return m_reading->Result();
}

bool FolderListing::WaitForSome(DWORD milliseconds) const {
    return m_task->WaitFor(m_reading->Some(), milliseconds);
}

std::vector<FolderEntry> FolderListing::Take() {
    return m_reading->Take();
}

bool FolderIsThere(const std::wstring& path, DWORD milliseconds) {
    const auto there = std::make_shared<std::atomic<bool>>(false);
    const auto task = BackgroundTask::Start([path, there] { *there = FolderExists(LongPath(path)); }, {});
    return task && task->Wait(milliseconds) && *there;
}

} // namespace _qv_commonctrl
