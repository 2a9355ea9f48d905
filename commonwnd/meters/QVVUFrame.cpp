#include "QVVUFrame.h"

#include "VUFacePainter.h"
#include "support/Handles.h"

#include <QVPaintMemoDC.h>
#include <QVSkin.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <tuple>
#include <utility>

using namespace _qv_commonctrl;
using _qv_extractrl::CQVVUTableCtrl;

namespace _qv_commonwnd {

namespace {

constexpr int kFirstOutput = 4;
constexpr int kFirstTrack = 12;
constexpr int kSlotsBehindOutputs = 8;   // outputs hide from slot count + 8 ...
constexpr int kLastHiddenByOutputs = 15; // ... to this one, whosever it is
constexpr UINT kFirstButtonId = 1001;
constexpr UINT_PTR kDemoTimer = 1;
constexpr int kDemoLevels = 100;
constexpr wchar_t kButtonText[] = L"•";
// A disabled, push-like check box.
constexpr DWORD kButtonStyle = WS_CHILD | WS_DISABLED | BS_PUSHLIKE | BS_AUTOCHECKBOX;

// Pixels at 96 DPI.
constexpr int kLowestHeightPx = 298;
constexpr int kLargestHeightPx = 798;

UINT DpiOf(const CWnd& wnd) {
    return QV_GetWindowDpi(wnd.m_hWnd);
}

// A meter and the button above it, in a slot of the frame. Both are there or neither is.
struct Channel {
    CQVVUTableCtrl*& meter;
    CQVButton*& button;

    void Create(CWnd& frame, UINT buttonId) {
        meter = new CQVVUTableCtrl;
        meter->Create(WS_CHILD, CRect(0, 0, 0, 0), &frame, 0);
        button = new CQVButton;
        button->Create(kButtonText, kButtonStyle, CRect(0, 0, 0, 0), &frame, buttonId);
        button->SetAutoSize(TRUE);
    }

    void Place(const CRect& meterRect, const CPoint& buttonCorner) {
        if (!meter)
            return;
        meter->MoveWindow(meterRect);
        button->SetWindowPos(nullptr, buttonCorner.x, buttonCorner.y, 0, 0,
                             SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    void Show(bool show) {
        if (!meter)
            return;
        meter->ShowWindow(show ? SW_SHOWNA : SW_HIDE);
        button->ShowWindow(show ? SW_SHOWNA : SW_HIDE);
    }

    void Delete() {
        if (!meter)
            return;
        meter->DestroyWindow();
        button->DestroyWindow();
        delete std::exchange(meter, nullptr);
        delete std::exchange(button, nullptr);
    }
};

// What one group is to show.
struct GroupLevels {
    int firstSlot;
    int count;
    const int* levels; // null: left as they are
};

// All meters in one round, which paints many of them for little more than one.
template <size_t SLOTS>
void ShowLevels(CQVVUTableCtrl* const (&slots)[SLOTS], const std::array<GroupLevels, 3>& groups) {
    std::array<CQVVUTableCtrl*, std::tuple_size_v<std::decay_t<decltype(groups)>> * SLOTS> meters;
    std::array<int, std::tuple_size_v<decltype(meters)>> levels;
    int meterCount = 0;
    for (const GroupLevels& group : groups) {
        const int most = static_cast<int>(SLOTS) - group.firstSlot;
        const int count = group.levels ? std::clamp(group.count, 0, most) : 0;
        std::copy_n(slots + group.firstSlot, count, meters.data() + meterCount);
        std::copy_n(group.levels, count, levels.data() + meterCount);
        meterCount += count;
    }
    CQVVUTableCtrl::SetPos(meters.data(), levels.data(), meterCount);
}

} // namespace

// Exported, so that a host that takes their address links without optimisation as well.
const int CQVVUFrame::kMostInputs;
const int CQVVUFrame::kMostTracks;
const int CQVVUFrame::kMostOutputs;

IMPLEMENT_DYNCREATE(CQVVUFrame, CWnd)

BEGIN_MESSAGE_MAP(CQVVUFrame, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_TIMER()
    ON_WM_CLOSE()
END_MESSAGE_MAP()

CQVVUFrame::CQVVUFrame()
    : m_pLayout(new CVUFaceLayout), m_pTickPen(QV_LoadPen(QVPEN_SCALE_TICK)),
      m_pShadowPen(QV_LoadPen(QVPEN_SCALE_SHADOW)), m_brPanel(QV_GetSysColor(QVCLR_PANEL_RAISED)) {
}

CQVVUFrame::~CQVVUFrame() {
    DestroyWindow();
    DeleteSlots();
    QV_ReleaseCommonRes(m_pTickPen);
    QV_ReleaseCommonRes(m_pShadowPen);
    delete m_pLayout;
}

LRESULT CQVVUFrame::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (HandleFrameMessage(message, wParam, lParam, result))
        return result;
    return CWnd::WindowProc(message, wParam, lParam);
}

int CQVVUFrame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    constexpr int kInitialTracks = 8;
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    ModifyStyle(0, WS_CLIPCHILDREN);
    AttachFrame(this);
    for (int slot = 0; slot < kFirstTrack; ++slot)
        Channel{m_pMeter[slot], m_pButton[slot]}.Create(*this, kFirstButtonId + static_cast<UINT>(slot));
    SetUVFace(0, kInitialTracks, kMostOutputs);
    AttachSkin(this);
    return 0;
}

void CQVVUFrame::SetUVFace(long nIn, long nTrack, long nOut) {
    if (!m_hWnd || !IsFacePossible(nIn, nTrack, nOut))
        return;
    const auto channel = [this](int slot) { return Channel{m_pMeter[slot], m_pButton[slot]}; };
    const auto place = [&channel](const VUGroup& group, int firstSlot) {
        for (int i = 0; i < group.count; ++i) {
            const CSize offset(group.pitch * i, 0);
            channel(firstSlot + i).Place(group.firstMeter + offset, group.firstButton + offset);
            channel(firstSlot + i).Show(true);
        }
    };
    for (; m_nTrackCreated < nTrack; ++m_nTrackCreated)
        channel(kFirstTrack + m_nTrackCreated)
            .Create(*this, kFirstButtonId + static_cast<UINT>(m_nTrackCreated));
    for (int slot = 0; slot < m_nTrackCount + kFirstTrack; ++slot)
        channel(slot).Show(false);
    m_nInCount = static_cast<int>(nIn);
    m_nTrackCount = static_cast<int>(nTrack);
    m_nOutCount = static_cast<int>(nOut);
    *m_pLayout = CVUFaceLayout(m_nInCount, m_nTrackCount, m_nOutCount, DpiOf(*this));
    place(m_pLayout->input, 0);
    place(m_pLayout->track, kFirstTrack);
    place(m_pLayout->output, kFirstOutput);
    for (int slot = m_nInCount; slot < kFirstOutput; ++slot)
        channel(slot).Show(false);
    // With fewer than eight outputs this reaches into the first tracks; hosts rely on the faces being so.
    for (int slot = m_nOutCount + kSlotsBehindOutputs; slot <= kLastHiddenByOutputs; ++slot)
        channel(slot).Show(false);
    m_nWidth = m_pLayout->width;
    ResizeToFace();
    Invalidate(FALSE);
}

// The width follows the face; the client area keeps its height.
void CQVVUFrame::ResizeToFace() {
    CRect client;
    GetClientRect(&client);
    StretchMeters(client.Height());
    const CRect edges = GetFrameEdges();
    SetWindowPos(nullptr, 0, 0, m_nWidth + edges.left + edges.right,
                 client.Height() + edges.top + edges.bottom, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CQVVUFrame::SetUVValue(int nIn, int* pIn, int nTrack, int* pTrack, int nOut, int* pOut, int, int) {
    if (nIn != m_nInCount || nTrack != m_nTrackCount || nOut != m_nOutCount)
        SetUVFace(nIn, nTrack, nOut);
    ShowLevels(m_pMeter, {{{0, nIn, pIn}, {kFirstOutput, nOut, pOut}, {kFirstTrack, nTrack, pTrack}}});
}

void CQVVUFrame::ClearUVValue() {
    const int none[kSlots] = {};
    ShowLevels(
        m_pMeter,
        {{{0, m_nInCount, none}, {kFirstOutput, m_nOutCount, none}, {kFirstTrack, m_nTrackCount, none}}});
}

void CQVVUFrame::SetAutoClose(BOOL bAutoClose) {
    m_bAutoClose = bAutoClose;
}

void CQVVUFrame::OnPaint() {
    int marksDb[] = {0, -3, -6, -12, -20, -30, -40, -60, -120};
    CQVPaintMemoDC dc(this, QVCLR_PANEL);
    const CRect& client = dc.Client();
    const UINT dpi = DpiOf(*this);
    PaintVUFace(dc, client, *m_pLayout, dpi);
    const Selection font(dc.GetSafeHdc(), QV_GetSysFont(QVFONT_TITLE, dpi)->GetSafeHandle());
    for (const VUGroup* group : {&m_pLayout->input, &m_pLayout->track, &m_pLayout->output}) {
        if (group->count > 0)
            PaintLine(&dc, marksDb, static_cast<int>(std::size(marksDb)),
                      VUScale(*group, client.Height(), dpi));
    }
}

void CQVVUFrame::PaintLine(CDC* pDC, int* pMarks, int nMarks, CRect rect) {
    PaintVUScale(*pDC, pMarks, nMarks, rect, {m_pTickPen, m_pShadowPen}, DpiOf(*this));
}

BOOL CQVVUFrame::OnEraseBkgnd(CDC*) {
    return TRUE; // every pixel is painted by OnPaint
}

// The meters' buttons stand on the raised panels.
HBRUSH CQVVUFrame::OnCtlColor(CDC* pDC, CWnd*, UINT) {
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(QV_GetSysColor(QVCLR_TEXT));
    return m_brPanel;
}

void CQVVUFrame::OnSize(UINT nType, int cx, int cy) {
    StretchMeters(cy);
    Invalidate(FALSE);
    CWnd::OnSize(nType, cx, cy);
}

// Every meter keeps its top and ends where the face does.
void CQVVUFrame::StretchMeters(int clientHeight) {
    const int bottom = VUFoot(clientHeight, DpiOf(*this));
    for (CQVVUTableCtrl* meter : m_pMeter) {
        if (!meter)
            continue;
        CRect rect;
        meter->GetWindowRect(&rect);
        ScreenToClient(&rect);
        rect.bottom = std::max<LONG>(rect.top, bottom);
        meter->MoveWindow(rect);
    }
}

void CQVVUFrame::OnGetMinMaxInfo(MINMAXINFO* pInfo) {
    const UINT dpi = DpiOf(*this);
    pInfo->ptMinTrackSize = CPoint(m_nWidth, QV_ScaleForDpi(kLowestHeightPx, dpi));
    pInfo->ptMaxTrackSize = CPoint(m_nWidth, QV_ScaleForDpi(kLargestHeightPx, dpi));
}

// A demonstration pattern; a host that wants it starts the timer.
void CQVVUFrame::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent != kDemoTimer) {
        CWnd::OnTimer(nIDEvent);
        return;
    }
    int levels[kSlots];
    std::generate(std::begin(levels), std::end(levels), [] { return rand() % kDemoLevels; });
    CQVVUTableCtrl::SetPos(m_pMeter, levels, kSlots);
}

void CQVVUFrame::OnClose() {
    if (m_bAutoClose)
        CWnd::OnClose();
    else
        ShowWindow(SW_HIDE);
}

void CQVVUFrame::OnDestroy() {
    DeleteSlots();
    m_nInCount = m_nTrackCount = m_nOutCount = m_nTrackCreated = 0;
    DetachFrame();
    CWnd::OnDestroy();
}

void CQVVUFrame::DeleteSlots() {
    for (int slot = 0; slot < kSlots; ++slot)
        Channel{m_pMeter[slot], m_pButton[slot]}.Delete();
}

void CQVVUFrame::OnSkinChange(UINT reason, HWND wnd) {
    QV_ReleaseCommonRes(m_pTickPen);
    QV_ReleaseCommonRes(m_pShadowPen);
    m_pTickPen = QV_LoadPen(QVPEN_SCALE_TICK);
    m_pShadowPen = QV_LoadPen(QVPEN_SCALE_SHADOW);
    m_brPanel.DeleteObject();
    m_brPanel.CreateSolidBrush(QV_GetSysColor(QVCLR_PANEL_RAISED));
    CQVBaseFrame::OnSkinChange(reason, wnd);
}

} // namespace _qv_commonwnd
