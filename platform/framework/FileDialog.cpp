#include "afxdlgs.h"

#include <algorithm>
#include <exception>

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

namespace {

// "a|*.a|b|*.b||" as the system wants it: NULs for bars, a double NUL at the end (CString adds one of its own).
CString FilterWithNuls(LPCTSTR filter) {
    CString result(filter);
    wchar_t* text = result.GetBuffer(result.GetLength() + 1);
    const int length = static_cast<int>(wcslen(text));
    for (int i = 0; i < length; ++i) {
        if (text[i] == L'|')
            text[i] = L'\0';
    }
    text[length] = L'\0';
    result.ReleaseBuffer(length + 1);
    return result;
}

} // namespace

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD dwSize, BOOL)
    : CCommonDialog(pParentWnd), m_ofn{}, m_bOpenFileDialog(bOpenFileDialog), m_szFileTitle{}, m_szFileName{} {
    m_ofn.lStructSize = dwSize ? dwSize : sizeof m_ofn;
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = MAX_PATH;
    m_ofn.lpstrDefExt = lpszDefExt;
    m_ofn.lpstrFileTitle = m_szFileTitle;
    m_ofn.nMaxFileTitle = MAX_PATH;
    m_ofn.Flags = dwFlags | OFN_ENABLEHOOK | OFN_EXPLORER;
    m_ofn.lpfnHook = HookProc;
    m_ofn.lCustData = reinterpret_cast<LPARAM>(this);
    if (lpszFileName)
        wcsncpy_s(m_szFileName, lpszFileName, _TRUNCATE);
    if (lpszFilter) {
        m_strFilter = FilterWithNuls(lpszFilter);
        m_ofn.lpstrFilter = m_strFilter;
    }
}

INT_PTR CFileDialog::DoModal() {
    CWnd* owner = m_pParentWnd ? m_pParentWnd : AfxGetMainWnd();
    m_ofn.hwndOwner = owner && owner->GetSafeHwnd() ? owner->GetTopLevelParent()->GetSafeHwnd() : nullptr;
    if (!m_ofn.hInstance)
        m_ofn.hInstance = AfxGetResourceHandle();
    const HWND focus = ::GetFocus();
    const BOOL chosen = m_bOpenFileDialog ? ::GetOpenFileNameW(&m_ofn) : ::GetSaveFileNameW(&m_ofn);
    if (m_hWnd)
        Detach();
    if (::IsWindow(focus))
        ::SetFocus(focus);
    return chosen ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK CFileDialog::HookProc(HWND hDlg, UINT message, WPARAM, LPARAM lParam) noexcept {
    if (message != WM_INITDIALOG)
        return 0;
    auto* dialog = reinterpret_cast<CFileDialog*>(reinterpret_cast<OPENFILENAMEW*>(lParam)->lCustData);
    try {
        return dialog->OnHookInit(hDlg);
    } catch (const std::exception& fault) {
        ::OutputDebugStringA(fault.what());
    }
    return 1;
}

// From here on every message of the hook's child dialog comes through the framework.
UINT_PTR CFileDialog::OnHookInit(HWND hDlg) {
    if (!m_hWnd)
        SubclassWindow(hDlg);
    return static_cast<UINT_PTR>(OnInitDialog());
}

// Asks the running dialog's frame with one of the CDM_GET... messages, whatever the length of the answer.
CString CFileDialog::AskRunning(UINT message) const {
    const HWND frame = ::GetParent(m_hWnd);
    CString answer;
    for (int size = MAX_PATH;;) {
        const LRESULT needed = ::SendMessageW(frame, message, static_cast<WPARAM>(size),
                                              reinterpret_cast<LPARAM>(answer.GetBuffer(size)));
        if (needed <= 0) {
            answer.ReleaseBuffer(0);
            return answer;
        }
        if (needed <= size) {
            answer.ReleaseBuffer();
            return answer;
        }
        answer.ReleaseBuffer(0);
        size = static_cast<int>(needed);
    }
}

CString CFileDialog::GetPathName() const {
    if (m_hWnd)
        return AskRunning(CDM_GETFILEPATH);
    POSITION pos = GetStartPosition();
    return pos ? GetNextPathName(pos) : CString();
}

CString CFileDialog::GetFileName() const {
    if (m_hWnd)
        return AskRunning(CDM_GETSPEC);
    const CString path = GetPathName();
    return path.Mid(path.ReverseFind(L'\\') + 1);
}

CString CFileDialog::GetFileExt() const {
    const CString name = m_hWnd ? AskRunning(CDM_GETSPEC) : GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? CString() : name.Mid(dot + 1);
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFileDialog::GetFolderPath() const {
    return m_hWnd ? AskRunning(CDM_GETFOLDERPATH) : CString();
}

BOOL CFileDialog::GetReadOnlyPref() const {
    return (m_ofn.Flags & OFN_READONLY) != 0;
}

POSITION CFileDialog::GetStartPosition() const {
    return m_ofn.lpstrFile && *m_ofn.lpstrFile ? reinterpret_cast<POSITION>(m_ofn.lpstrFile) : nullptr;
}

// The list's last NUL, bounded by the buffer.
LPCWSTR CFileDialog::FileListEnd() const {
    return m_ofn.lpstrFile + m_ofn.nMaxFile;
}

// One file: its full path. Several: the folder, then the names, NUL after each, one more NUL at the end. The position
// points to the next name, or to the folder at the start.
CString CFileDialog::GetNextPathName(POSITION& pos) const {
    LPCWSTR const start = m_ofn.lpstrFile;
    LPCWSTR const end = FileListEnd();
    LPCWSTR current = reinterpret_cast<LPCWSTR>(pos);
    pos = nullptr;
    if (!current || current < start || current >= end)
        return CString();
    auto next = [end](LPCWSTR text) { return std::min(text + wcsnlen(text, static_cast<size_t>(end - text)) + 1, end); };

    const bool many = (m_ofn.Flags & OFN_ALLOWMULTISELECT) != 0;
    LPCWSTR const first = next(start);
    if (!many || first >= end || !*first)
        return CString(start, static_cast<int>(wcsnlen(start, static_cast<size_t>(end - start))));
    if (current == start)
        current = first;
    CString path(start);
    if (path.Right(1) != L"\\")
        path += L'\\';
    path += CString(current, static_cast<int>(wcsnlen(current, static_cast<size_t>(end - current))));
    LPCWSTR const following = next(current);
    if (following < end && *following)
        pos = reinterpret_cast<POSITION>(const_cast<wchar_t*>(following));
    return path;
}
