#include "QVPsdOptionWnd.h"

#include <LWSupportAPI.h>
#include <QVCommonClass.h>
#include <QVMemoDC.h>
#include <QVSkin.h>

#include <algorithm>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

constexpr int kImportTypeLabelId = 10000;
constexpr int kLayerLabelId = 10001;
constexpr int kImportTypeComboId = 20001;
constexpr int kLayerComboId = 20002;

constexpr DWORD kLabelStyle = WS_CHILD | WS_VISIBLE | SS_NOTIFY | SS_CENTERIMAGE;
constexpr DWORD kComboStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST;

// Entries of the import-type combo.
constexpr int kRenderImport = 0;
constexpr int kLayerImport = 1;

constexpr int kLabelToComboGapPx = 24;
constexpr int kListRowHeightPx = 18; // room for a check mark

int ClosedHeight(const CComboBox& combo) {
    CRect closed;
    combo.GetWindowRect(&closed);
    return closed.Height();
}

// The closed field follows from the font; the row is as high as it says. What the system adds to the field's height
// differs between its versions, so what came out is corrected once.
void FitClosedHeight(CComboBox& combo, int heightPx) {
    constexpr int tries = 2;
    int field = combo.GetItemHeight(-1);
    for (int i = 0; i < tries && field > 0 && ClosedHeight(combo) != heightPx; ++i) {
        field += heightPx - ClosedHeight(combo);
        combo.SetItemHeight(-1, static_cast<UINT>(std::max(1, field)));
    }
}

} // namespace

IMPLEMENT_DYNAMIC(CQVPsdOptionWnd, CWnd)

BEGIN_MESSAGE_MAP(CQVPsdOptionWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_QV_CHECKCOMBO_CLOSEUP, &CQVPsdOptionWnd::OnCloseUpMsg)
END_MESSAGE_MAP()

CQVPsdOptionWnd::CQVPsdOptionWnd()
    : m_bEnableImportType(TRUE), m_bEnableLayer(TRUE), m_bCompileImport(TRUE), m_nRowGap(10), m_nLeft(99),
      m_nRowHeight(20), m_nLabelWidth(69), m_nComboWidth(247), m_nDropHeight(160) {
}

CQVPsdOptionWnd::~CQVPsdOptionWnd() = default;

DWORD CQVPsdOptionWnd::GetMinHeight() {
    const int heightPx = m_nRowGap + m_nRowHeight + m_nRowGap + m_nRowHeight;
    return static_cast<DWORD>(heightPx);
}

int CQVPsdOptionWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    m_bCompileImport = TRUE;
    AttachSkin(this);
    if (!m_bDelayControls)
        EnsureControls();
    return 0;
}

void CQVPsdOptionWnd::DelayControls() {
    m_bDelayControls = TRUE;
}

void CQVPsdOptionWnd::EnsureControls() {
    if (!GetSafeHwnd() || m_stcImportType.GetSafeHwnd())
        return;
    ModifyStyleEx(0, WS_EX_CONTROLPARENT); // the tab key goes through the dialog's panels
    CreateRow(m_stcImportType, kImportTypeLabelId, L"IDS_FILEDLG_IMPORTTYPE", m_cmbImportType,
              kImportTypeComboId);
    m_cmbImportType.InsertString(kRenderImport, LWLoadString(L"IDS_FILEDLG_RENDERIMP"));
    m_cmbImportType.InsertString(kLayerImport, LWLoadString(L"IDS_FILEDLG_LAYERIMP"));
    m_cmbImportType.SetCurSel(kRenderImport);
    CreateRow(m_stcLayer, kLayerLabelId, L"IDS_FILEDLG_LAYER", m_cmbLayer, kLayerComboId);
    m_cmbLayer.EnableWindow(FALSE);
    // Behind the controls: they have taken a new skin's font when the rows are placed anew.
    DetachSkin();
    AttachSkin(this);
}

BOOL CQVPsdOptionWnd::CreateRow(CQVStatic& label, int labelId, LPCWSTR labelKey, CQVComboBox& combo,
                                int comboId) {
    const UINT dpi = QV_GetWindowDpi(GetSafeHwnd());
    if (!label.Create(LWLoadString(labelKey), kLabelStyle, CRect(0, 0, 0, 0), this, labelId))
        return FALSE;
    label.SetFont(QV_GetSysFont(QVFONT_UI, dpi));
    label.SetBkColorIndex(QVCLR_WINDOW);
    const CRect dropped(0, 0, 0, QV_ScaleForDpi(m_nDropHeight, dpi));
    if (!combo.Create(kComboStyle, dropped, this, comboId))
        return FALSE;
    combo.ModifyStyle(0, WS_TABSTOP);
    combo.SetFont(QV_GetSysFont(QVFONT_UI, dpi));
    combo.SetItemHeight(0, static_cast<UINT>(QV_ScaleForDpi(kListRowHeightPx, dpi)));
    return TRUE;
}

void CQVPsdOptionWnd::PlaceRow(CWnd& label, CQVComboBox& combo, int topPx) {
    const UINT dpi = QV_GetWindowDpi(GetSafeHwnd());
    const int comboLeft = m_nLeft + m_nLabelWidth + kLabelToComboGapPx;
    const int top = QV_ScaleForDpi(topPx, dpi);
    if (label.GetSafeHwnd())
        label.MoveWindow(QV_ScaleForDpi(m_nLeft, dpi), top, QV_ScaleForDpi(m_nLabelWidth, dpi),
                         QV_ScaleForDpi(m_nRowHeight, dpi));
    if (!combo.GetSafeHwnd())
        return;
    // A combo box takes the height of its dropped list.
    combo.MoveWindow(QV_ScaleForDpi(comboLeft, dpi), top, QV_ScaleForDpi(m_nComboWidth, dpi),
                     QV_ScaleForDpi(m_nRowHeight + m_nDropHeight, dpi));
    FitClosedHeight(combo, QV_ScaleForDpi(m_nRowHeight, dpi));
}

void CQVPsdOptionWnd::PlaceRows() {
    PlaceRow(m_stcImportType, m_cmbImportType, 0);
    PlaceRow(m_stcLayer, m_cmbLayer, m_nRowHeight + m_nRowGap);
}

void CQVPsdOptionWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (cx > 0 || cy > 0) { // most dialogs never show the panel: nothing is placed before
        EnsureControls();
        PlaceRows();
    }
    EnableControls();
}

void CQVPsdOptionWnd::OnSkinChange(UINT reason, HWND wnd) {
    CQVBaseCtrl::OnSkinChange(reason, wnd);
    PlaceRows();
}

BOOL CQVPsdOptionWnd::IsLayerImportChosen() const {
    return m_cmbImportType.GetSafeHwnd() && m_cmbImportType.GetCurSel() == kLayerImport;
}

void CQVPsdOptionWnd::EnableControls() {
    if (m_cmbImportType.GetSafeHwnd())
        m_cmbImportType.EnableWindow(m_bEnableImportType);
    if (m_cmbLayer.GetSafeHwnd())
        m_cmbLayer.EnableWindow(m_bEnableLayer && IsLayerImportChosen());
}

BOOL CQVPsdOptionWnd::OnEraseBkgnd(CDC*) {
    return TRUE;
}

// What shows round the corners of the controls.
HBRUSH CQVPsdOptionWnd::OnCtlColor(CDC* pDC, CWnd*, UINT) {
    if (pDC)
        pDC->SetBkMode(TRANSPARENT);
    return QV_GetSysBrush(QVBRUSH_WINDOW);
}

void CQVPsdOptionWnd::OnPaint() {
    CQVPaintMemoDC memory(this, QVCLR_WINDOW);
}

// The names outlive the window: the host asks for them when the dialog is gone.
void CQVPsdOptionWnd::OnDestroy() {
    if (m_cmbLayer.GetSafeHwnd() && !m_bCompileImport)
        KeepChecks();
    DetachSkin();
    CWnd::OnDestroy();
}

// By value: the exported signature is kept.
void CQVPsdOptionWnd::ReadPsdFile(CString strPath) { // NOLINT(performance-unnecessary-value-param)
    EnsureControls();
    m_arrLayerName.RemoveAll();
    if (!_qv_commonclass::CQVVideoPlay::GetPsdLayerInfo(strPath, m_arrLayerName) || !m_cmbLayer.GetSafeHwnd())
        return;
    FillLayerList();
    KeepChecks();
}

// The top layer, which the document stores last, stands first and is the current entry. Entries are appended: putting
// each one before all others takes seconds for a document of tens of thousands of layers.
void CQVPsdOptionWnd::FillLayerList() {
    m_cmbLayer.SendMessage(WM_CLEAR);
    m_cmbLayer.SetRedraw(FALSE);
    m_cmbLayer.ResetContent();
    const INT_PTR count = m_arrLayerName.GetSize();
    for (INT_PTR i = count - 1; i >= 0; --i)
        m_cmbLayer.AddString(m_arrLayerName.GetAt(i));
    m_cmbLayer.CheckAll(TRUE);
    if (count > 0)
        m_cmbLayer.SetCurSel(0);
    m_cmbLayer.SetRedraw(TRUE);
    m_cmbLayer.Invalidate(FALSE);
}

void CQVPsdOptionWnd::KeepChecks() {
    const int count = m_cmbLayer.GetCount();
    m_vecLayerCheck.clear();
    for (int i = 0; i < count; ++i)
        m_vecLayerCheck.push_back(m_cmbLayer.GetCheck(i) ? 1 : 0);
}

void CQVPsdOptionWnd::EnableLayerInfo(BOOL bEnable) {
    m_bEnableLayer = bEnable;
    if (m_cmbLayer.GetSafeHwnd())
        m_cmbLayer.EnableWindow(bEnable && IsLayerImportChosen());
}

void CQVPsdOptionWnd::EnableCompileImportType(BOOL bEnable) {
    m_bEnableImportType = bEnable;
    if (m_cmbImportType.GetSafeHwnd())
        m_cmbImportType.EnableWindow(bEnable);
}

BOOL CQVPsdOptionWnd::IsCompileImportType() {
    return m_bCompileImport;
}

void CQVPsdOptionWnd::GetImportLayerName(CStringArray& arr) {
    arr.RemoveAll();
    arr.Append(m_arrLayerName);
}

void CQVPsdOptionWnd::GetImportLayerInfo(std::vector<int>& v) {
    for (auto check = m_vecLayerCheck.rbegin(); check != m_vecLayerCheck.rend(); ++check)
        v.push_back(m_bCompileImport ? 1 : *check);
}

LRESULT CQVPsdOptionWnd::OnCloseUpMsg(WPARAM, LPARAM) {
    KeepChecks();
    return 0;
}

BOOL CQVPsdOptionWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (LOWORD(wParam) == kImportTypeComboId && HIWORD(wParam) == CBN_SELCHANGE)
        OnImportTypeChanged();
    return CWnd::OnCommand(wParam, lParam);
}

void CQVPsdOptionWnd::OnImportTypeChanged() {
    const bool byLayers = IsLayerImportChosen();
    m_bCompileImport = !byLayers;
    if (byLayers)
        KeepChecks();
    m_cmbLayer.EnableWindow(byLayers && m_bEnableLayer);
}

} // namespace _qv_commonwnd
