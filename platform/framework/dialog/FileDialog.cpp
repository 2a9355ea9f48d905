// CFileDialog: the object, the modal run and the hook.
#include "window/ThreadState.h"
#include "afxdlgs.h"

#include <algorithm>
#include <cwchar>

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

namespace {

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

} // namespace

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
