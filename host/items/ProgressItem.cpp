// The progress window over real work: a worker thread reads every file of the sample folder.
#include "MediaCheck.h"

#include "gallery/GalleryItem.h"

#include <thread>

using namespace _qv_commonwnd;
using namespace _qv_commonctrl;

namespace {

void CheckMedia(IGalleryContext& context) {
    CMediaCheck check(FilesOfFolder(context.SampleFolder()));
    CString title = QV_LoadSysString(L"IDS_GALLERY_PROGRESS");
    CZ5ProgressDlg::EndProgressWnd(FALSE); // of the run before, as the answer that the worker may ask for
    CZ5ProgressDlg::m_bExist = FALSE;      // before the window is there to clear it
    std::thread worker([&check] { check.Run(); });
    CZ5ProgressDlg::ProgressWndDoModle(title.GetBuffer(), CMediaCheck::kRange, 0.0f);
    worker.join();
    CString text;
    text.Format(L"%d files, %I64d bytes, sum %08X%s", check.Checked(), check.Bytes(), check.Sum(),
                CZ5ProgressDlg::Exist() ? L", cancelled" : L"");
    context.Report(L"CZ5ProgressDlg", text);
}

const GalleryRegistration progress({GalleryGroup::Messages, L"progress", L"IDS_GALLERY_PROGRESS",
                                    CheckMedia});

} // namespace
