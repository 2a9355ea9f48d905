// CFileDialog: the object, the modal run and the hook, what the running dialog tells and is told, the
// results.
#include "ChosenNames.h"
#include "handles/TemporaryScope.h"
#include "thread/ThreadState.h"
#include "afx/Exception.h"
#include "afx/FileDialog.h"
#include "afx/Resources.h"

#include <algorithm>
#include <cwchar>

namespace {

constexpr int kNameBufferChars = 32768; // of the buffer that a dialog brings along

const UINT g_nLBSelChanged = ::RegisterWindowMessageW(LBSELCHSTRINGW);

// "a|*.a|b|*.b||" in the form the system wants: NULs for bars, and an empty string at the end.
CString FilterWithNuls(LPCTSTR lpszFilter) {
    CString filter(lpszFilter);
    const int length = filter.GetLength();
    LPTSTR const text = filter.GetBuffer(length + 2);
    std::replace(text, text + length, L'|', L'\0');
    text[length] = text[length + 1] = L'\0';
    filter.ReleaseBuffer(length + 2);
    return filter;
}

// Names the object to the hook for the length of the system's call; dialogs may be nested.
class StartingDialog {
  public:
    explicit StartingDialog(CFileDialog* dialog)
        : m_outer(std::exchange(AfxThreadState::Get().startingFileDialog, dialog)) {}
    ~StartingDialog() { AfxThreadState::Get().startingFileDialog = m_outer; }
    StartingDialog(const StartingDialog&) = delete;
    StartingDialog& operator=(const StartingDialog&) = delete;

  private:
    CFileDialog* m_outer;
};

// The system reads the answer of a dialog procedure from the window, that of a window procedure from the
// result; the hook's window is both.
BOOL Answer(HWND hWnd, LRESULT value, LRESULT* pResult) {
    ::SetWindowLongPtrW(hWnd, DWLP_MSGRESULT, static_cast<LONG_PTR>(value));
    *pResult = value;
    return TRUE;
}

CString NameOf(const CString& path) {
    return path.Mid(path.ReverseFind(L'\\') + 1);
}

} // namespace

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

BEGIN_MESSAGE_MAP(CFileDialog, CCommonDialog)
    ON_REGISTERED_MESSAGE(g_nLBSelChanged, &CFileDialog::HandleLBSelChanged)
END_MESSAGE_MAP()

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD, BOOL)
    : CCommonDialog(pParentWnd), m_ofn{}, m_bOpenFileDialog(bOpenFileDialog), m_strDefExt(lpszDefExt),
      m_pszNameBuffer(new TCHAR[kNameBufferChars]()), m_szFileTitle{} {
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.lpstrFile = m_pszNameBuffer;
    m_ofn.nMaxFile = kNameBufferChars;
    m_ofn.lpstrFileTitle = m_szFileTitle;
    m_ofn.nMaxFileTitle = MAX_PATH;
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLEHOOK;
    m_ofn.lpfnHook = HookProc;
    if (lpszDefExt)
        m_ofn.lpstrDefExt = m_strDefExt;
    if (lpszFileName) {
        const size_t length = std::min<size_t>(wcslen(lpszFileName), kNameBufferChars - 1);
        std::copy_n(lpszFileName, length, m_pszNameBuffer);
    }
    if (lpszFilter && *lpszFilter) {
        m_strFilter = FilterWithNuls(lpszFilter);
        m_ofn.lpstrFilter = m_strFilter;
    }
}

CFileDialog::~CFileDialog() {
    delete[] m_pszNameBuffer;
}

INT_PTR CFileDialog::DoModal() {
    if (m_hWnd || !m_ofn.lpstrFile || m_ofn.nMaxFile == 0)
        return IDCANCEL;
    // What stood behind the first name in a buffer that is used again must not be taken for further names.
    const size_t used = wcsnlen(m_ofn.lpstrFile, m_ofn.nMaxFile - 1);
    std::fill(m_ofn.lpstrFile + used, m_ofn.lpstrFile + m_ofn.nMaxFile, L'\0');

    const HWND focus = ::GetFocus();
    m_ofn.hwndOwner = PreModal();
    if (!m_ofn.hInstance)
        m_ofn.hInstance = AfxGetResourceHandle();
    const TemporaryScope temporaries;
    BOOL chosen = FALSE;
    {
        const StartingDialog starting(this);
        chosen = m_bOpenFileDialog ? ::GetOpenFileNameW(&m_ofn) : ::GetSaveFileNameW(&m_ofn);
    }
    PostModal();
    if (m_hWnd) // the hook's window went without telling
        Detach();
    // The system's own loop never is idle: what it left of temporary objects goes here.
    temporaries.Remove();
    if (focus && ::IsWindow(focus))
        ::SetFocus(focus);
    return chosen ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK CFileDialog::HookProc(HWND hWnd, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG)
        return 0;
    CFileDialog* const dialog = std::exchange(AfxThreadState::Get().startingFileDialog, nullptr);
    if (!dialog)
        return 0;
    try {
        // From here on the messages of the hook's window come through the framework.
        if (dialog->SubclassWindow(hWnd))
            return static_cast<UINT_PTR>(dialog->OnInitDialog());
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
        ::OutputDebugStringW(L"AfxFrame: the file dialog's initialisation threw\n");
    }
    return 0;
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto& notify = *reinterpret_cast<const OFNOTIFY*>(lParam);
    switch (notify.hdr.code) {
    case CDN_INITDONE:
        OnInitDone();
        return TRUE;
    case CDN_SELCHANGE:
        OnFileNameChange();
        return TRUE;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        return TRUE;
    case CDN_TYPECHANGE:
        OnTypeChange();
        return TRUE;
    case CDN_HELP:
        OnHelp();
        return TRUE;
    case CDN_FILEOK:
        return Answer(m_hWnd, OnFileNameOK(), pResult);
    case CDN_SHAREVIOLATION:
        return Answer(m_hWnd, OnShareViolation(notify.pszFile), pResult);
    default:
        return CCommonDialog::OnNotify(wParam, lParam, pResult);
    }
}

UINT CFileDialog::OnShareViolation(LPCTSTR) {
    return OFN_SHAREWARN;
}

BOOL CFileDialog::OnFileNameOK() {
    return FALSE;
}

void CFileDialog::OnLBSelChangedNotify(UINT, UINT, UINT) {
}

LRESULT CFileDialog::HandleLBSelChanged(WPARAM wParam, LPARAM lParam) {
    OnLBSelChangedNotify(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
    return 0;
}

void CFileDialog::SetControlText(int nID, LPCTSTR lpsz) {
    if (m_hWnd)
        ::SendMessageW(::GetParent(m_hWnd), CDM_SETCONTROLTEXT, static_cast<WPARAM>(nID),
                       reinterpret_cast<LPARAM>(lpsz));
}

void CFileDialog::HideControl(int nID) {
    if (m_hWnd)
        ::SendMessageW(::GetParent(m_hWnd), CDM_HIDECONTROL, static_cast<WPARAM>(nID), 0);
}

void CFileDialog::SetDefExt(LPCTSTR lpsz) {
    if (m_hWnd)
        ::SendMessageW(::GetParent(m_hWnd), CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(lpsz));
}

// The answer of the running dialog to one of its CDM_GET... messages, whatever its length.
CString CFileDialog::AskDialog(UINT message) const {
    CString answer;
    const HWND frame = ::GetParent(m_hWnd);
    for (LRESULT chars = MAX_PATH;;) {
        const LPTSTR buffer = answer.GetBuffer(static_cast<int>(chars));
        *buffer = L'\0';
        const LRESULT needed =
            ::SendMessageW(frame, message, static_cast<WPARAM>(chars), reinterpret_cast<LPARAM>(buffer));
        if (needed <= chars) {
            answer.ReleaseBuffer(needed > 0 ? -1 : 0);
            return answer;
        }
        answer.ReleaseBuffer(0);
        chars = needed;
    }
}

CString CFileDialog::GetPathName() const {
    if (m_hWnd)
        return AskDialog(CDM_GETFILEPATH);
    POSITION pos = GetStartPosition();
    return pos ? GetNextPathName(pos) : CString();
}

CString CFileDialog::GetFileName() const {
    return m_hWnd ? AskDialog(CDM_GETSPEC) : NameOf(GetPathName());
}

CString CFileDialog::GetFileExt() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? CString() : name.Mid(dot + 1);
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFileDialog::GetFolderPath() const {
    return m_hWnd ? AskDialog(CDM_GETFOLDERPATH) : CString();
}

// A position is the place in the buffer.
POSITION CFileDialog::GetStartPosition() const {
    return reinterpret_cast<POSITION>(const_cast<LPTSTR>(ChosenNames(m_ofn).First()));
}

CString CFileDialog::GetNextPathName(POSITION& pos) const {
    LPCTSTR place = reinterpret_cast<LPCTSTR>(pos);
    CString path = ChosenNames(m_ofn).TakePath(place);
    pos = reinterpret_cast<POSITION>(const_cast<LPTSTR>(place));
    return path;
}
