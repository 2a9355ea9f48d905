// A directory tree in a window of the host, which comes back to the folder chosen the last time.
#include "GalleryItem.h"

#include "res/resource.h"

using namespace _qv_commonwnd;
using namespace _qv_commonctrl;

namespace {

constexpr wchar_t kKey[] = L"GalleryTree";

class CTreeWnd : public CQVDialog {
  public:
    explicit CTreeWnd(CWnd* parent) : CQVDialog(IDD_GALLERY_TREE, parent) {}
    ~CTreeWnd() override { QV_ReleaseDirTree(m_tree); }

    CString Chosen() const { return m_chosen; }

    BOOL OnInitDialog() override {
        CQVDialog::OnInitDialog();
        SetWindowText(QV_LoadSysString(L"IDS_GALLERY_DIRTREE"));
        SetDlgItemText(IDOK, QV_LoadSysString(L"IDS_COMMON_OK"));
        SetDlgItemText(IDCANCEL, QV_LoadSysString(L"IDS_COMMON_CANCEL"));
        m_tree = QV_GetDirTree(this, PlaceOfTree());
        m_tree->ModifyStyle(0, WS_TABSTOP);
        m_tree->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        QV_InitFilePath(Tree(), kKey, FALSE);
        m_tree->SetFocus();
        return FALSE; // the focus is set
    }

  protected:
    void OnOK() override {
        QV_InitFilePath(Tree(), kKey, TRUE);
        m_chosen = Tree()->GetPathName();
        CQVDialog::OnOK();
    }

  private:
    CQVDirTreeCtrl* Tree() const { return static_cast<CQVDirTreeCtrl*>(m_tree); }

    CRect PlaceOfTree() {
        CRect place;
        CWnd* const mark = GetDlgItem(IDC_GALLERY_TREE_PLACE);
        mark->GetWindowRect(&place);
        ScreenToClient(&place);
        mark->DestroyWindow();
        return place;
    }

    CWnd* m_tree = nullptr;
    CString m_chosen;
};

void ShowTree(IGalleryContext& context) {
    CTreeWnd window(context.MainWnd());
    context.Report(L"QV_GetDirTree", window.DoModal() == IDOK ? window.Chosen() : CString(L"IDCANCEL"));
}

const GalleryRegistration tree({GalleryGroup::Folders, L"dirtree", L"IDS_GALLERY_DIRTREE", ShowTree});

} // namespace
