#include "FilePreviewWnd.h"

#include "PreviewPaint.h"

#include <QVPaintMemoDC.h>

#include <algorithm>

using namespace _qv_commonctrl;
using namespace _qv_commonwnd;

namespace {

constexpr int kWidthPx = 480;
constexpr int kHeightPx = 124;
constexpr int kGapPx = 8;
constexpr int kPictureWidth = 16; // the frame for the picture is 16 : 9
constexpr int kPictureHeight = 9;
constexpr int kDialogFramePx = 2;
constexpr UINT_PTR kTimer = 1;
constexpr UINT kWaitMs = 60;

} // namespace

BEGIN_MESSAGE_MAP(CFilePreviewWnd, CWnd)
    ON_MESSAGE(WM_QV_FILESELCHANGE, &CFilePreviewWnd::OnFileSelChange)
    ON_WM_TIMER()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CFilePreviewWnd::CFilePreviewWnd(IGalleryContext& context) : m_context(context) {
}

CFilePreviewWnd::~CFilePreviewWnd() {
    DestroyWindow();
}

BOOL CFilePreviewWnd::CreateHidden() {
    CWnd* parent = m_context.MainWnd();
    const CSize size(QV_ScalePx(parent->GetSafeHwnd(), kWidthPx),
                     QV_ScalePx(parent->GetSafeHwnd(), kHeightPx));
    if (!Create(AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW), L"", WS_CHILD, CRect(CPoint(0, 0), size),
                parent, 0))
        return FALSE;
    AttachSkin(this);
    TakeLines();
    return TRUE;
}

void CFilePreviewWnd::OnDestroy() {
    KillTimer(kTimer);
    DetachSkin();
    CWnd::OnDestroy();
}

LRESULT CFilePreviewWnd::OnFileSelChange(WPARAM what, LPARAM detail) {
    switch (what) {
    case FILESEL_MISSING:
        m_selected = Selected::Missing;
        break;
    case FILESEL_ONE: {
        const auto* path = reinterpret_cast<const wchar_t*>(detail);
        m_selected = path ? Selected::One : Selected::Nothing;
        m_path = path;
        break;
    }
    case FILESEL_SEVERAL:
        m_selected = Selected::Several;
        m_count = *reinterpret_cast<const int*>(detail);
        break;
    case FILESEL_ATTACHED: {
        const auto* dialog = reinterpret_cast<const CQVFileDialog*>(detail);
        m_context.ReportNumber(L"filetype", dialog->m_ofn.nFilterIndex);
        m_selected = Selected::Nothing;
        break;
    }
    default:
        return 0;
    }
    SetTimer(kTimer, kWaitMs, nullptr);
    return 0;
}

void CFilePreviewWnd::OnTimer(UINT_PTR id) {
    if (id != kTimer)
        return;
    KillTimer(kTimer);
    ShowSelection();
}

void CFilePreviewWnd::ShowSelection() {
    CRect client;
    GetClientRect(&client);
    m_thumbnail.Clear();
    m_facts = m_selected == Selected::One ? ReadFileFacts(m_path, PictureFrame(client).Size(), m_thumbnail)
                                          : FileFacts();
    TakeLines();
    m_context.Report(L"preview", Say());
    Invalidate(FALSE);
}

CString CFilePreviewWnd::Say() const {
    CString text = L"nothing";
    if (m_selected == Selected::One || m_selected == Selected::Missing)
        text = m_facts.Summary();
    else if (m_selected == Selected::Several)
        text.Format(L"several: %d", m_count);
    return text;
}

void CFilePreviewWnd::TakeLines() {
    if (m_selected == Selected::One || m_selected == Selected::Missing) {
        m_lines = m_facts.Lines();
        return;
    }
    CString line = QV_LoadSysString(L"IDS_GALLERY_PREVIEW_NONE");
    if (m_selected == Selected::Several)
        line.Format(QV_LoadSysString(L"IDS_GALLERY_PREVIEW_SEVERAL"), m_count);
    m_lines = {line};
}

CRect CFilePreviewWnd::PictureFrame(const CRect& client) const {
    const int gap = QV_ScalePx(m_hWnd, kGapPx);
    const int height = std::max(1, client.Height() - 2 * gap);
    return CRect(CPoint(client.left + gap, client.top + gap),
                 CSize(height * kPictureWidth / kPictureHeight, height));
}

// With the folder panel the dialog docks the window down to its lowest line, where its own frame is: that much of the
// window is cut away.
void CFilePreviewWnd::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    const int height = std::max(0, cy - QV_ScalePx(m_hWnd, kDialogFramePx));
    ::SetWindowRgn(m_hWnd, ::CreateRectRgn(0, 0, cx, height), TRUE);
}

BOOL CFilePreviewWnd::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CFilePreviewWnd::OnPaint() {
    CQVPaintMemoDC dc(this, QVCLR_WINDOW);
    const CRect& client = dc.Client();
    const int gap = QV_ScalePx(m_hWnd, kGapPx);
    const CRect frame = PictureFrame(client);
    int left = frame.left;
    if (HasPicture()) {
        PaintInFrame(dc, frame);
        left = frame.right + gap;
    }
    PaintLines(dc, CRect(left, frame.top, client.right - gap, frame.bottom), m_lines,
               QV_GetWindowDpi(m_hWnd));
}

// Whether there is more to see than lines of text.
bool CFilePreviewWnd::HasPicture() const {
    return !m_thumbnail.IsEmpty() || !m_facts.layers.empty() || !m_facts.outline.IsEmpty();
}

void CFilePreviewWnd::PaintInFrame(CDC& dc, const CRect& frame) {
    const UINT dpi = QV_GetWindowDpi(m_hWnd);
    dc.FillSolidRect(frame, QV_GetSysColor(QVCLR_LIST));
    PaintThumbnail(dc, frame, m_thumbnail);
    PaintLayers(dc, frame, m_facts.layers, dpi);
    PaintOutline(dc, frame, m_facts.outline, dpi);
    dc.Draw3dRect(frame, QV_GetSysColor(QVCLR_LIST_FRAME), QV_GetSysColor(QVCLR_LIST_FRAME));
}
