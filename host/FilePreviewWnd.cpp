#include "FilePreviewWnd.h"

#include <QVMemoDC.h>

#include <algorithm>
#include <cmath>

using namespace _qv_commonctrl;
using namespace _qv_commonwnd;

namespace {

constexpr int kWidthPx = 480;
constexpr int kHeightPx = 124;
constexpr int kGapPx = 8;
constexpr int kLinePx = 20;
constexpr int kLayerLinePx = 16;
constexpr int kLeastLanePx = 18;
constexpr int kPictureWidth = 16; // the frame for the picture is 16 : 9
constexpr int kPictureHeight = 9;
constexpr int kDialogFramePx = 2;
constexpr UINT_PTR kTimer = 1;
constexpr UINT kWaitMs = 60;

// One channel: its middle line, and in each column of pixels a stroke from its lowest to its highest sample.
void PaintLane(CDC& dc, const CRect& lane, const std::vector<SoundOutline::Range>& ranges) {
    const int middle = lane.CenterPoint().y;
    const int reach = std::max(1, lane.Height() / 2 - 1);
    const auto offset = [reach](float sample) {
        return static_cast<int>(std::lround(sample * static_cast<float>(reach)));
    };
    dc.FillSolidRect(CRect(lane.left, middle, lane.right, middle + 1), QV_GetSysColor(QVCLR_GRID));
    for (int x = 0; x < lane.Width(); ++x) {
        const SoundOutline::Range& range =
            ranges[static_cast<size_t>(x) * ranges.size() / static_cast<size_t>(lane.Width())];
        dc.FillSolidRect(CRect(lane.left + x, middle - offset(range.high), lane.left + x + 1,
                               middle - offset(range.low) + 1),
                         QV_GetSysColor(QVCLR_ACCENT));
    }
}

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
    DropThumbnail();
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
    case 0:
        m_selected = Selected::Missing;
        break;
    case 1: {
        const auto* path = reinterpret_cast<const wchar_t*>(detail);
        m_selected = path ? Selected::One : Selected::Nothing;
        m_path = path;
        break;
    }
    case 2:
        m_selected = Selected::Several;
        m_count = *reinterpret_cast<const int*>(detail);
        break;
    case 5: {
        const auto* dialog = reinterpret_cast<const CQVFileDialog*>(detail);
        CString type;
        type.Format(L"%u", static_cast<UINT>(dialog->m_ofn.nFilterIndex));
        m_context.Report(L"filetype", type);
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
    DropThumbnail();
    CRect client;
    GetClientRect(&client);
    m_facts = m_selected == Selected::One ? ReadFileFacts(m_path, PictureFrame(client).Size(), m_thumbnail)
                                          : FileFacts();
    TakeLines();
    m_context.Report(L"preview", Say());
    Invalidate(FALSE);
}

void CFilePreviewWnd::DropThumbnail() {
    if (m_thumbnail)
        ::DeleteObject(m_thumbnail);
    m_thumbnail = nullptr;
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
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    CQVMemoDC dc(&paint, client);
    dc.FillSolidRect(client, QV_GetSysColor(QVCLR_WINDOW));
    const int gap = QV_ScalePx(m_hWnd, kGapPx);
    const CRect frame = PictureFrame(client);
    int left = frame.left;
    if (HasPicture()) {
        PaintInFrame(dc, frame);
        left = frame.right + gap;
    }
    PaintLines(dc, CRect(left, frame.top, client.right - gap, frame.bottom));
}

// Whether there is more to see than lines of text.
bool CFilePreviewWnd::HasPicture() const {
    return m_thumbnail || !m_facts.layers.empty() || !m_facts.outline.IsEmpty();
}

void CFilePreviewWnd::PaintInFrame(CDC& dc, const CRect& frame) const {
    dc.FillSolidRect(frame, QV_GetSysColor(QVCLR_LIST));
    PaintPicture(dc, frame);
    PaintLayers(dc, frame);
    PaintOutline(dc, frame);
    dc.Draw3dRect(frame, QV_GetSysColor(QVCLR_LIST_FRAME), QV_GetSysColor(QVCLR_LIST_FRAME));
}

void CFilePreviewWnd::PaintPicture(CDC& dc, const CRect& frame) const {
    BITMAP bitmap = {};
    if (!m_thumbnail || !::GetObjectW(m_thumbnail, sizeof bitmap, &bitmap))
        return;
    CDC source;
    source.CreateCompatibleDC(&dc);
    const HGDIOBJ old = ::SelectObject(source.GetSafeHdc(), m_thumbnail);
    dc.BitBlt(frame.left + (frame.Width() - bitmap.bmWidth) / 2,
              frame.top + (frame.Height() - bitmap.bmHeight) / 2, bitmap.bmWidth, bitmap.bmHeight, &source, 0,
              0, SRCCOPY);
    ::SelectObject(source.GetSafeHdc(), old);
}

// A layered document shows its layers, the top one first; the last row says how many more there are when there is no
// room for all.
void CFilePreviewWnd::PaintLayers(CDC& dc, const CRect& frame) const {
    const int gap = QV_ScalePx(m_hWnd, kGapPx);
    const int step = QV_ScalePx(m_hWnd, kLayerLinePx);
    const int count = static_cast<int>(m_facts.layers.size());
    const int rows = std::max(1, (frame.Height() - gap / 2) / step);
    const int named = count <= rows ? count : rows - 1;
    CFont* old = dc.SelectObject(QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(m_hWnd)));
    dc.SetBkMode(TRANSPARENT);
    CRect row(frame.left + gap, frame.top + gap / 2, frame.right - gap, frame.top + gap / 2 + step);
    constexpr UINT oneLine = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX;
    dc.SetTextColor(QV_GetSysColor(QVCLR_TEXT_WINDOW));
    for (int i = 0; i < named; ++i, row.OffsetRect(0, step))
        dc.DrawText(m_facts.layers[static_cast<size_t>(count - 1 - i)], row, oneLine);
    if (named < count) {
        CString more;
        more.Format(QV_LoadSysString(L"IDS_GALLERY_PREVIEW_MORE"), count - named);
        dc.SetTextColor(QV_GetSysColor(QVCLR_TEXT_LIST));
        dc.DrawText(more, row, oneLine);
    }
    dc.SelectObject(old);
}

// A sound shows its outline, each channel in a lane of its own as far as there is room.
void CFilePreviewWnd::PaintOutline(CDC& dc, const CRect& frame) const {
    const auto& channels = m_facts.outline.channels;
    if (channels.empty())
        return;
    CRect inner(frame);
    inner.DeflateRect(QV_ScalePx(m_hWnd, kGapPx) / 2, QV_ScalePx(m_hWnd, kGapPx) / 2);
    const int room = std::max(1, inner.Height() / QV_ScalePx(m_hWnd, kLeastLanePx));
    const int lanes = std::min(room, static_cast<int>(channels.size()));
    for (int lane = 0; lane < lanes; ++lane)
        PaintLane(dc,
                  CRect(inner.left, inner.top + inner.Height() * lane / lanes, inner.right,
                        inner.top + inner.Height() * (lane + 1) / lanes),
                  channels[static_cast<size_t>(lane)]);
}

void CFilePreviewWnd::PaintLines(CDC& dc, const CRect& area) const {
    const int step = QV_ScalePx(m_hWnd, kLinePx);
    CFont* old = dc.SelectObject(QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(m_hWnd)));
    dc.SetBkMode(TRANSPARENT);
    CRect row(area.left, area.top, area.right, area.top + step);
    for (size_t i = 0; i < m_lines.size(); ++i) {
        dc.SetTextColor(QV_GetSysColor(i == 0 ? QVCLR_TEXT_WINDOW : QVCLR_TEXT_LIST));
        dc.DrawText(m_lines[i], row, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
        row.OffsetRect(0, step);
    }
    dc.SelectObject(old);
}
