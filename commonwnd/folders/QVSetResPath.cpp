#include "QVSetResPath.h"

#include "ResPathRules.h"
#include "module/DictText.h"
#include "module/StoredPaths.h"
#include "res/ResourceIds.h"
#include "support/DialogRows.h"
#include "support/WindowText.h"
#include "QVModule.h"
#include "QVPathDialog.h"

#include <QVCommonClass.h>

#include <shlwapi.h>

using namespace _qv_commonctrl;
using namespace _qv_commonclass;

namespace _qv_commonwnd {

namespace {

PathState StateOf(const CString& path) {
    return PathFileExistsW(path) ? PathState::There : PathState::Missing;
}

CString FieldText(const CWnd& dialog, int id) {
    return WindowTextOf(dialog.GetDlgItem(id));
}

void EnableOkOnChange(const CWnd& dialog, int id, const CString& former) {
    if (FieldText(dialog, id).CompareNoCase(former) != 0)
        dialog.GetDlgItem(IDOK)->EnableWindow();
}

void Browse(CWnd& dialog, int id) {
    const CString former = FieldText(dialog, id);
    CQVPathDialog chooser(nullptr);
    if (chooser.DoModal() != IDOK)
        return;
    dialog.SetDlgItemText(id, chooser.GetPathName());
    EnableOkOnChange(dialog, id, former);
}

void Store(CQVSetResPath& dialog, const CString& resource, const CString& media) {
    if (lstrcmpW(resource, dialog.m_strResPath) == 0 && lstrcmpW(media, dialog.m_strMediaPath) == 0)
        return;
    dialog.m_strResPath = resource;
    dialog.m_strMediaPath = media;
    StorePath(kResPathKey, resource);
    StorePath(kMediaPathKey, media);
}

} // namespace

IMPLEMENT_DYNAMIC(CQVSetResPath, CQVDialog)

BEGIN_MESSAGE_MAP(CQVSetResPath, CQVDialog)
    ON_BN_CLICKED(IDC_RESPATH_BROWSE, &CQVSetResPath::OnBnClickedButton1)
    ON_BN_CLICKED(IDC_MEDIAPATH_BROWSE, &CQVSetResPath::OnBnClickedButton2)
    ON_BN_CLICKED(IDOK, &CQVSetResPath::OnBnClickedOk)
    ON_BN_CLICKED(IDCANCEL, &CQVSetResPath::OnBnClickedCancel)
    ON_EN_CHANGE(IDC_RESPATH_EDIT, &CQVSetResPath::OnEnChangeRespath)
    ON_EN_CHANGE(IDC_MEDIAPATH_EDIT, &CQVSetResPath::OnEnChangeFilepath)
END_MESSAGE_MAP()

CQVSetResPath::CQVSetResPath(CWnd* parent) : CQVDialog(IDD_SETRESPATH, parent) {
}

CQVSetResPath::~CQVSetResPath() = default;

INT_PTR CQVSetResPath::DoModal() {
    CZ5ResHandleManage resources(g_hCommonWndInst);
    return CDialog::DoModal();
}

BOOL CQVSetResPath::OnInitDialog() {
    {
        TemplateTranslation translation;
        CQVDialog::OnInitDialog();
    }
    AlignLabelsWithFields(*this);
    MakeRoomForLabels(*this);
    if (QV_GetState(kStateResourceDirLocked)) {
        for (const int id : {IDC_RESPATH_EDIT, IDC_RESPATH_BROWSE})
            GetDlgItem(id)->ShowWindow(SW_HIDE);
    }
    GetDlgItem(IDOK)->EnableWindow(FALSE);
    if (m_strResPath.IsEmpty())
        m_strResPath = StoredPath(kResPathKey);
    SetDlgItemText(IDC_RESPATH_EDIT, m_strResPath);
    if (m_strMediaPath.IsEmpty())
        m_strMediaPath = StoredPath(kMediaPathKey);
    SetDlgItemText(IDC_MEDIAPATH_EDIT, m_strMediaPath);
    return TRUE;
}

void CQVSetResPath::OnBnClickedButton1() {
    Browse(*this, IDC_RESPATH_EDIT);
}

void CQVSetResPath::OnBnClickedButton2() {
    Browse(*this, IDC_MEDIAPATH_EDIT);
}

void CQVSetResPath::OnEnChangeRespath() {
    EnableOkOnChange(*this, IDC_RESPATH_EDIT, m_strResPath);
}

void CQVSetResPath::OnEnChangeFilepath() {
    EnableOkOnChange(*this, IDC_MEDIAPATH_EDIT, m_strMediaPath);
}

void CQVSetResPath::OnBnClickedOk() {
    const CString resource = FieldText(*this, IDC_RESPATH_EDIT).Trim();
    const CString media = FieldText(*this, IDC_MEDIAPATH_EDIT).Trim();
    const PathVerdict verdict = JudgePaths(StateOf(resource), StateOf(media));
    if (verdict.message.IsEmpty()) {
        Store(*this, WithoutTrailingBackslashes(resource), WithoutTrailingBackslashes(media));
        CDialog::OnOK();
        return;
    }
    AfxMessageBox(verdict.message, MB_OK);
    if (verdict.restore == PathField::Resource)
        SetDlgItemText(IDC_RESPATH_EDIT, m_strResPath);
    else
        SetDlgItemText(IDC_MEDIAPATH_EDIT, m_strMediaPath);
}

void CQVSetResPath::OnBnClickedCancel() {
    CDialog::OnCancel();
}

void CQVSetResPath::DoDataExchange(CDataExchange* dx) {
    CQVDialog::DoDataExchange(dx);
}

void CQVSetResPath::OnSkinChange(UINT reason, HWND wnd) {
    CQVDialog::OnSkinChange(reason, wnd);
}

} // namespace _qv_commonwnd
