// Temporary window objects: made, taken out of the way, removed.
#include "TemporaryWindows.h"
#include "window/WndAccess.h"

CWnd* TemporaryWindows::FindOrMake(HWND hWnd) {
    Temporary& found = m_windows[hWnd];
    if (!found.wnd) {
        found.wnd = AfxWndAccess::MakeTemporary(hWnd);
        found.serial = m_nextSerial++;
    }
    return found.wnd.get();
}

void TemporaryWindows::Retire(HWND hWnd, const CWnd* pWnd) {
    const auto found = m_windows.find(hWnd);
    if (found == m_windows.end() || found->second.wnd.get() != pWnd)
        return;
    m_retired.push_back(std::move(found->second));
    m_windows.erase(found);
}

void TemporaryWindows::RemoveSince(unsigned long long serial) {
    const auto isNewer = [serial](const Temporary& temporary) { return temporary.serial >= serial; };
    std::erase_if(m_retired, isNewer);
    std::erase_if(m_windows, [&](const auto& item) { return isNewer(item.second); });
}

void TemporaryWindows::RemoveDead() {
    std::erase_if(m_windows, [](const auto& item) { return !::IsWindow(item.first); });
    m_retired.clear();
}
