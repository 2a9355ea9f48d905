#include "DirListRows.h"

#include "FolderOrder.h"
#include "module/RedrawPause.h"

#include <shlwapi.h>

#include <algorithm>

namespace _qv_commonctrl {

namespace {

enum Column { kName, kSize, kModified }; // in the order in which the list inserts its own

constexpr DWORD kPatienceMs = 2000; // a folder of which nothing is known in this time is answered with FALSE

std::wstring SizeText(const FolderEntry& entry) {
    wchar_t text[64] = L"";
    if (entry.kind == FolderKind::File)
        StrFormatByteSizeW(static_cast<LONGLONG>(entry.size), text, 64);
    return text;
}

std::wstring TimeText(const FILETIME& time) {
    SYSTEMTIME world = {};
    SYSTEMTIME local = {};
    wchar_t date[64] = L"";
    wchar_t clock[64] = L"";
    if ((time.dwLowDateTime | time.dwHighDateTime) == 0 || !FileTimeToSystemTime(&time, &world) ||
        !SystemTimeToTzSpecificLocalTime(nullptr, &world, &local))
        return std::wstring();
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &local, nullptr, date, 64, nullptr);
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, TIME_NOSECONDS, &local, nullptr, clock, 64);
    return std::wstring(date) + L" " + clock;
}

} // namespace

UINT DirListRows::ListedMessage() {
    static const UINT message = RegisterWindowMessageW(L"QVCommonCtrlU.DirListRead");
    return message;
}

UINT DirListRows::OpenMessage() {
    static const UINT message = RegisterWindowMessageW(L"QVCommonCtrlU.DirListOpen");
    return message;
}

bool DirListRows::Read(FolderRequest request) {
    auto listing = FolderListing::Start(std::move(request), {m_list.m_hWnd, ListedMessage(), m_id + 1});
    if (!listing || !listing->WaitForSome(kPatienceMs) ||
        (listing->Wait(0) && !listing->Result().Succeeded()))
        return false;
    m_listing = std::move(listing);
    ++m_id;
    return true;
}

void DirListRows::Show() {
    m_sortKeys.clear();
    m_list.DeleteAllItems();
    OnListed(m_id);
}

void DirListRows::OnListed(UINT id) {
    if (id != m_id || !m_listing)
        return;
    const bool ended = m_listing->Wait(0); // asked before the entries are taken: then these are all
    InsertTaken();
    if (ended)
        m_listing.reset();
}

void DirListRows::InsertTaken() {
    auto entries = m_listing->Take();
    SortEntries(entries);
    const RedrawPause pause(m_list.m_hWnd);
    const std::size_t former = m_sortKeys.size();
    const bool ours =
        static_cast<std::size_t>(m_list.GetItemCount()) == former; // else the host has rows of its own
    m_list.SendMessage(LVM_SETITEMCOUNT, former + entries.size()); // room at once, not bit by bit
    auto place = m_sortKeys.begin();
    for (FolderEntry& entry : entries) {
        place = std::upper_bound(place, m_sortKeys.end(), entry.sortKey);
        Insert(ours ? static_cast<int>(place - m_sortKeys.begin()) : m_list.GetItemCount(), entry);
        place = m_sortKeys.insert(place, std::move(entry.sortKey));
    }
}

void DirListRows::Insert(int index, const FolderEntry& entry) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM;
    item.iItem = index;
    item.pszText = const_cast<LPWSTR>(entry.name.c_str());
    item.iImage = static_cast<int>(entry.icon);
    item.lParam = entry.kind != FolderKind::File;
    m_list.SendMessage(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    m_list.SetItemText(index, kSize, SizeText(entry).c_str());
    m_list.SetItemText(index, kModified, TimeText(entry.modified).c_str());
}

} // namespace _qv_commonctrl
