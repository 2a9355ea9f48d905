#include "QVFileDialog.h"

#include "FileDialogIds.h"
#include "FileDialogParts.h"
#include "support/FileNameRules.h"
#include "fileview/QVComboBoxSt.h"
#include "fileview/QVListView.h"
#include "QVWndEx.h"
#include "support/TextView.h"
#include "fileview/ToolBarEx.h"

#include <QVCommonClass.h>

#include <shlwapi.h>

namespace _qv_commonwnd {

namespace {

constexpr DWORD kMultiSelectChars = 260000;
constexpr int kAllowPsdPanel = 2;

// Where the profile keeps the dialog's last folder: a registry item, which is another store than the profile's section
// of nearly the same name.
constexpr wchar_t kFolderItem[] = L"pathset";
constexpr wchar_t kFolderValue[] = L"filepath";
constexpr wchar_t kRootFolder[] = L"C:\\";

static_assert(sizeof(OPENFILENAMEW) == 152, "the full record of a 64-bit system");

} // namespace

IMPLEMENT_DYNAMIC(CQVFileDialog, CFileDialog)

BEGIN_MESSAGE_MAP(CQVFileDialog, CFileDialog)
    ON_WM_GETMINMAXINFO()
    ON_MESSAGE(WM_QV_IMPORTFORDER, &CQVFileDialog::OnMsgImportForder)
END_MESSAGE_MAP()

// The base is always built in the hook style: the whole dialog stands on the hook's child window.
CQVFileDialog::CQVFileDialog(int bOpenFileDialog, const wchar_t* lpszDefExt, const wchar_t* lpszFileName,
                             unsigned long dwFlags, const wchar_t* lpszFilter, CWnd* pParentWnd,
                             unsigned long dwSize, int /*bVistaStyle*/, int bRawNames, unsigned long dwOption)
    : CFileDialog(bOpenFileDialog, lpszDefExt, lpszFileName, dwFlags, lpszFilter, pParentWnd, dwSize, FALSE),
      m_pWndEx(new CQVWndEx), m_pToolBar(new CToolBarEx), m_pLookInCombo(new CQVComboBoxSt),
      m_pListView(new CQVListView), m_pShellViewHolder(nullptr), m_pSkinnedList(nullptr), m_dwPsdState(0),
      m_pAdvanceWnd(nullptr), m_pReserved(nullptr), m_szAdvance(0, 0), m_bPreviewMode(0),
      m_bRawNames(bRawNames), m_strFilter(lpszFilter), m_bNameOK(1),
      m_dwOption(bOpenFileDialog ? dwOption : static_cast<DWORD>(FDO_KEEPOK)), m_eSelType(eSelFile),
      m_pParts(std::make_unique<CFileDialogParts>()) {
    m_ofn.Flags &= ~static_cast<DWORD>(OFN_ENABLESIZING);
    if (m_ofn.Flags & OFN_ALLOWMULTISELECT)
        UseMultiSelectBuffer();
    m_ofn.Flags |= OFN_HIDEREADONLY;
    ParseFilterPatterns();
}

CQVFileDialog::~CQVFileDialog() {
    if ((m_ofn.Flags & OFN_ALLOWMULTISELECT) && m_ofn.lpstrFile)
        m_ofn.lpstrFile = nullptr;
    ReleaseShellList();
    // The windows are the system's; an object that still wears one must not take it along.
    for (CWnd* const worn : std::initializer_list<CWnd*>{m_pWndEx, &m_btnOK, &m_btnCancel, &m_stcFileName,
                                                         &m_stcFileType, &m_stcLookIn, &m_cmbFileType,
                                                         m_pLookInCombo, &m_cmbFileName, m_pToolBar})
        if (worn->m_hWnd)
            worn->UnsubclassWindow();
    delete std::exchange(m_pWndEx, nullptr);
    delete std::exchange(m_pToolBar, nullptr);
    delete std::exchange(m_pListView, nullptr);
    delete std::exchange(m_pLookInCombo, nullptr);
    if (m_wndForderImport.GetSafeHwnd())
        m_wndForderImport.DestroyWindow();
}

void CQVFileDialog::UseMultiSelectBuffer() {
    m_pMultiSelectBuffer = std::make_unique<wchar_t[]>(kMultiSelectChars);
    m_ofn.lpstrFile = m_pMultiSelectBuffer.get();
    m_ofn.nMaxFile = kMultiSelectChars;
    m_ofn.lStructSize = sizeof(OPENFILENAMEW);
}

void CQVFileDialog::ParseFilterPatterns() {
    const FilterPatterns parsed = ParseFilter(ViewOf(m_strFilter));
    for (const std::wstring& pattern : parsed.patterns)
        m_arrFilterExt.Add(TextOf(pattern));
    m_strFilter = TextOf(parsed.rest);
}

INT_PTR CQVFileDialog::DoModal() {
    // An object may run again: what the last run ended with must not be taken for this one's end.
    m_eSelType = eSelFile;
    m_strSelPath.Empty();
    m_strSelFormat.Empty();
    TestTempFilePath();
    return CFileDialog::DoModal();
}

BOOL CQVFileDialog::OnFileNameOK() {
    if (m_bNameOK)
        return FALSE;
    m_bNameOK = 1;
    return TRUE;
}

void CQVFileDialog::SetPreviewMode(int nMode) {
    m_bPreviewMode = nMode;
}

void CQVFileDialog::SetAdvanceWnd(CWnd* pWnd) {
    m_pAdvanceWnd = pWnd;
}

void CQVFileDialog::EnableCompileImportType(BOOL bEnable) {
    m_wndPsdOption.EnableCompileImportType(bEnable);
}

BOOL CQVFileDialog::IsCompileImportType() {
    return m_wndPsdOption.IsCompileImportType();
}

void CQVFileDialog::GetImportLayerName(CStringArray& arr) {
    m_wndPsdOption.GetImportLayerName(arr);
}

void CQVFileDialog::GetImportLayerInfo(std::vector<int>& v) {
    m_wndPsdOption.GetImportLayerInfo(v);
}

void CQVFileDialog::EnableLayerInfo(int n) {
    if (n == kAllowPsdPanel)
        m_dwPsdState |= PSDSTATE_ALLOWED;
    else
        m_wndPsdOption.EnableLayerInfo(n);
}

// A remembered folder that is gone would make the system dialog start in a place of its own choice.
void CQVFileDialog::TestTempFilePath() {
    _qv_commonclass::CZ5Regkey item;
    CString folder;
    if (!item.OpenItem(kFolderItem, TRUE))
        return;
    if (item.GetValue(kFolderValue, folder) && !PathFileExistsW(folder))
        item.SetValue(kFolderValue, kRootFolder);
    item.Close();
}

LRESULT CQVFileDialog::OnMsgImportForder(WPARAM, LPARAM) {
    constexpr LRESULT kImported = 0;
    constexpr LRESULT kNothingSelected = 1;
    if (m_strSelPath.IsEmpty())
        return kNothingSelected;
    m_eSelType = eSelForder;
    if (m_cmbFileType.m_hWnd && m_cmbFileType.GetCurSel() != CB_ERR)
        m_cmbFileType.GetLBText(m_cmbFileType.GetCurSel(), m_strSelFormat);
    ::EndDialog(Frame(), IDOK);
    return kImported;
}

} // namespace _qv_commonwnd
