#include "QVSetResPath.h"

#include "support/DialogRows.h"
#include "module/DictText.h"
#include "module/PathSettings.h"
#include "QVModule.h"
#include "QVPathDialog.h"
#include "ResPathRules.h"
#include "support/WindowText.h"
#include "res/ResourceIds.h"

#include <QVCommonClass.h>

#include <shlwapi.h>

using namespace _qv_commonctrl;
using namespace _qv_commonclass;

namespace _qv_commonwnd {

namespace {

PathState StateOf(const CString& path) {
    return PathFileExistsW(path) ? PathState::There : PathState::Missing;
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

CString CQVSetResPath::FieldText(int id) const {
    return TextOf(GetDlgItem(id));
}

void CQVSetResPath::EnableOkOnChange(int id, const CString& former) {
    if (FieldText(id).CompareNoCase(former) != 0)
        GetDlgItem(IDOK)->EnableWindow();
}

void CQVSetResPath::Browse(int id) {
    const CString former = FieldText(id);
    CQVPathDialog chooser(nullptr);
    if (chooser.DoModal() != IDOK)
        return;
    SetDlgItemText(id, chooser.GetPathName());
    EnableOkOnChange(id, former);
}

void CQVSetResPath::OnBnClickedButton1() {
    Browse(IDC_RESPATH_EDIT);
}

void CQVSetResPath::OnBnClickedButton2() {
    Browse(IDC_MEDIAPATH_EDIT);
}

void CQVSetResPath::OnEnChangeRespath() {
    EnableOkOnChange(IDC_RESPATH_EDIT, m_strResPath);
}

void CQVSetResPath::OnEnChangeFilepath() {
    EnableOkOnChange(IDC_MEDIAPATH_EDIT, m_strMediaPath);
}

void CQVSetResPath::OnBnClickedOk() {
    const CString resource = FieldText(IDC_RESPATH_EDIT).Trim();
    const CString media = FieldText(IDC_MEDIAPATH_EDIT).Trim();
    const PathVerdict verdict = JudgePaths(StateOf(resource), StateOf(media));
    if (verdict.message.IsEmpty()) {
        Store(WithoutTrailingBackslashes(resource), WithoutTrailingBackslashes(media));
        CDialog::OnOK();
        return;
    }
    AfxMessageBox(verdict.message, MB_OK);
    if (verdict.restore == PathField::Resource)
        SetDlgItemText(IDC_RESPATH_EDIT, m_strResPath);
    else
        SetDlgItemText(IDC_MEDIAPATH_EDIT, m_strMediaPath);
}

void CQVSetResPath::Store(const CString& resource, const CString& media) {
    if (lstrcmpW(resource, m_strResPath) == 0 && lstrcmpW(media, m_strMediaPath) == 0)
        return;
    m_strResPath = resource;
    m_strMediaPath = media;
    StorePath(kResPathKey, resource);
    StorePath(kMediaPathKey, media);
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
