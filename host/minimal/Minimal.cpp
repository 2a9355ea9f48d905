// Minimal.cpp: the smallest host. It asks for a file and then a question about it.
#include <QVCommonWnd.h>

using namespace _qv_commonwnd;

class CEditorApp : public CWinApp {
  public:
    BOOL InitInstance() override {
        QV_InitCommonWnd();
        OpenClip();
        QV_ReleaseCommonWnd();
        return FALSE; // no main window, no message loop
    }

  private:
    void OpenClip() {
        CQVFileDialog dialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST,
                             L"Video|*.avi;*.mxf;*.mov|All files|*.*|", nullptr, 0, FALSE, FALSE, FDO_KEEPOK);
        if (dialog.DoModal() != IDOK)
            return;
        const UINT answer = QV_MessageBox(L"Editor", L"Add " + dialog.GetFileName() + L" to the timeline?",
                                          MB_YESNO, nullptr);
        if (answer == QVMESSAGE_YES)
            AfxMessageBox(L"Added: " + dialog.GetPathName());
    }
};

CEditorApp theApp;
