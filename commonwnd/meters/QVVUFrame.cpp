#include "QVVUFrame.h"

#include "VUFaceLayout.h"

#include <QVSkin.h>

#include <algorithm>
#include <cstdlib>

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
constexpr int kMeterBottomPx = 20;
constexpr int kLowestHeightPx = 298;
constexpr int kLargestHeightPx = 798;
constexpr int kButtonSizePx = 15;

} // namespace

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

UINT CQVVUFrame::Dpi() const {
    return QV_GetWindowDpi(m_hWnd);
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
        CreateSlot(slot, kFirstButtonId + static_cast<UINT>(slot));
    SetUVFace(0, kInitialTracks, kMostOutputs);
    AttachSkin(this);
    return 0;
}

void CQVVUFrame::CreateSlot(int slot, UINT buttonId) {
    auto* meter = new CQVVUTableCtrl;
    meter->Create(WS_CHILD, CRect(0, 0, 0, 0), this, 0);
    m_pMeter[slot] = meter;
    auto* button = new CQVButton;
    const int size = QV_ScaleForDpi(kButtonSizePx, Dpi());
    button->Create(kButtonText, kButtonStyle, CRect(0, 0, size, size), this, buttonId);
    m_pButton[slot] = button;
}

void CQVVUFrame::ShowSlot(int slot, bool show) {
    if (slot < 0 || slot >= kSlots || !m_pMeter[slot])
        return;
    m_pMeter[slot]->ShowWindow(show ? SW_SHOWNA : SW_HIDE);
    m_pButton[slot]->ShowWindow(show ? SW_SHOWNA : SW_HIDE);
}

void CQVVUFrame::SetUVFace(long nIn, long nTrack, long nOut) {
    if (!m_hWnd || !IsFacePossible(nIn, nTrack, nOut))
        return;
    for (; m_nTrackCreated < nTrack; ++m_nTrackCreated)
        CreateSlot(kFirstTrack + m_nTrackCreated, kFirstButtonId + static_cast<UINT>(m_nTrackCreated));
    for (int slot = 0; slot < m_nTrackCount + kFirstTrack; ++slot)
        ShowSlot(slot, false);
    m_nInCount = static_cast<int>(nIn);
    m_nTrackCount = static_cast<int>(nTrack);
    m_nOutCount = static_cast<int>(nOut);
    *m_pLayout = CVUFaceLayout(m_nInCount, m_nTrackCount, m_nOutCount, Dpi());
    PlaceGroup(m_pLayout->input, 0);
    PlaceGroup(m_pLayout->track, kFirstTrack);
    PlaceGroup(m_pLayout->output, kFirstOutput);
    for (int slot = m_nInCount; slot < kFirstOutput; ++slot)
        ShowSlot(slot, false);
    // With fewer than eight outputs this reaches into the first tracks; hosts rely on the faces being so.
    for (int slot = m_nOutCount + kSlotsBehindOutputs; slot <= kLastHiddenByOutputs; ++slot)
        ShowSlot(slot, false);
    m_nWidth = m_pLayout->width;
    ResizeToFace();
    Invalidate(FALSE);
}

void CQVVUFrame::PlaceGroup(const VUGroup& group, int firstSlot) {
    CRect client;
    GetClientRect(&client);
    for (int i = 0; i < group.count; ++i) {
        const int slot = firstSlot + i;
        if (!m_pMeter[slot])
            continue;
        CRect meter = group.firstMeter;
        meter.OffsetRect(group.pitch * i, 0);
        m_pMeter[slot]->MoveWindow(meter);
        m_pButton[slot]->SetWindowPos(nullptr, group.firstButton.x + group.pitch * i, group.firstButton.y, 0,
                                      0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        ShowSlot(slot, true);
    }
    OnSize(SIZE_RESTORED, client.Width(), client.Height());
}

// The width follows the face; the client area keeps its height.
void CQVVUFrame::ResizeToFace() {
    CRect client;
    GetClientRect(&client);
    const CRect edges = GetFrameEdges();
    SetWindowPos(nullptr, 0, 0, m_nWidth + edges.left + edges.right,
                 client.Height() + edges.top + edges.bottom, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CQVVUFrame::SetUVValue(int nIn, int* pIn, int nTrack, int* pTrack, int nOut, int* pOut, int, int) {
    if (nIn != m_nInCount || nTrack != m_nTrackCount || nOut != m_nOutCount)
        SetUVFace(nIn, nTrack, nOut);
    ShowLevels(nIn, pIn, nTrack, pTrack, nOut, pOut);
}

// All meters in one round, which paints many of them for little more than one.
void CQVVUFrame::ShowLevels(int nIn, const int* pIn, int nTrack, const int* pTrack, int nOut,
                            const int* pOut) {
    struct Group {
        int firstSlot;
        int count;
        const int* levels; // null: left as they are
    };
    const Group groups[] = {{0, nIn, pIn}, {kFirstOutput, nOut, pOut}, {kFirstTrack, nTrack, pTrack}};
    CQVVUTableCtrl* meters[std::size(groups) * kSlots];
    int levels[std::size(groups) * kSlots];
    int meterCount = 0;
    for (const Group& group : groups) {
        const int count = group.levels ? std::clamp(group.count, 0, kSlots - group.firstSlot) : 0;
        std::copy_n(m_pMeter + group.firstSlot, count, meters + meterCount);
        std::copy_n(group.levels, count, levels + meterCount);
        meterCount += count;
    }
    CQVVUTableCtrl::SetPos(meters, levels, meterCount);
}

void CQVVUFrame::ClearUVValue() {
    const int none[kSlots] = {};
    ShowLevels(m_nInCount, none, m_nTrackCount, none, m_nOutCount, none);
}

void CQVVUFrame::SetAutoClose(BOOL bAutoClose) {
    m_bAutoClose = bAutoClose;
}

void CQVVUFrame::OnSize(UINT nType, int cx, int cy) {
    const int bottom = cy - QV_ScaleForDpi(kMeterBottomPx, Dpi());
    for (CQVVUTableCtrl* meter : m_pMeter) {
        if (!meter)
            continue;
        CRect rect;
        meter->GetWindowRect(&rect);
        ScreenToClient(&rect);
        rect.bottom = std::max<LONG>(rect.top, bottom);
        meter->MoveWindow(rect);
    }
    Invalidate(FALSE);
    CWnd::OnSize(nType, cx, cy);
}

void CQVVUFrame::OnGetMinMaxInfo(MINMAXINFO* pInfo) {
    const UINT dpi = Dpi();
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
    auto remove = [](auto*& control) {
        if (!control)
            return;
        control->DestroyWindow();
        delete control;
        control = nullptr;
    };
    for (int slot = 0; slot < kSlots; ++slot) {
        remove(m_pMeter[slot]);
        remove(m_pButton[slot]);
    }
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
