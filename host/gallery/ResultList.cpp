#include "ResultList.h"

#include <QVDict.h>
#include <QVSkin.h>

#include <commctrl.h>

using namespace _qv_commonctrl;

namespace {

constexpr int kWindowColumnPx = 130;
constexpr const wchar_t* kHeadKeys[] = {L"IDS_GALLERY_COLUMN_WINDOW", L"IDS_GALLERY_COLUMN_ANSWER"};

wchar_t* Writable(LPCWSTR text) {
    return const_cast<wchar_t*>(text); // the control only reads it
}

} // namespace

void CResultList::Attach(HWND list) {
    m_list = list;
    CRect client;
    ::GetClientRect(m_list, client);
    const int first = QV_ScalePx(m_list, kWindowColumnPx);
    AddColumn(0, first);
    AddColumn(1, client.Width() - first - ::GetSystemMetrics(SM_CXVSCROLL));
    ::SendMessageW(m_list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
}

void CResultList::AddColumn(int column, int width) {
    LVCOLUMNW head = {};
    head.mask = LVCF_TEXT | LVCF_WIDTH;
    head.pszText = Writable(L"");
    head.cx = width;
    ::SendMessageW(m_list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&head));
}

void CResultList::ShowTexts() {
    WPARAM column = 0;
    for (const wchar_t* key : kHeadKeys) {
        const CString text = QV_LoadSysString(key);
        LVCOLUMNW head = {};
        head.mask = LVCF_TEXT;
        head.pszText = Writable(text);
        ::SendMessageW(m_list, LVM_SETCOLUMNW, column++, reinterpret_cast<LPARAM>(&head));
    }
}

void CResultList::Add(LPCWSTR window, const CString& answer) {
    LVITEMW row = {};
    row.mask = LVIF_TEXT;
    row.iItem = static_cast<int>(::SendMessageW(m_list, LVM_GETITEMCOUNT, 0, 0));
    row.pszText = Writable(window);
    row.iItem = static_cast<int>(::SendMessageW(m_list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&row)));
    row.iSubItem = 1;
    row.pszText = Writable(answer);
    ::SendMessageW(m_list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row.iItem), reinterpret_cast<LPARAM>(&row));
    ::SendMessageW(m_list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row.iItem), FALSE);
}
