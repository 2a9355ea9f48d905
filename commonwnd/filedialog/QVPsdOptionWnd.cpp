#include "QVPsdOptionWnd.h"

#include <LWSupportAPI.h>
#include <QVCommonClass.h>
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

// The two rows of controls, and what is chosen in them.
class CQVPsdOptionWnd::CRows {
  public:
    explicit CRows(CQVPsdOptionWnd& panel) : m_panel(panel), m_dpi(QV_GetWindowDpi(panel.GetSafeHwnd())) {}

    // Makes the controls unless they are there. Without a window there are none.
    void Ensure();
    void Place();
    void Enable();

    void ListLayers();
    void KeepChecks();
    bool IsLayerImportChosen() const;

  private:
    void Make(CQVStatic& label, int labelId, LPCWSTR labelKey, CQVComboBox& combo, int comboId);
    void PlaceRow(CWnd& label, CQVComboBox& combo, int topPx);
    int Px(int px96) const { return QV_ScaleForDpi(px96, m_dpi); }

    CQVPsdOptionWnd& m_panel;
    UINT m_dpi;
};

IMPLEMENT_DYNAMIC(CQVPsdOptionWnd, CWnd)

BEGIN_MESSAGE_MAP(CQVPsdOptionWnd, CQVDialogPanel)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_QV_CHECKCOMBO_CLOSEUP, &CQVPsdOptionWnd::OnCloseUpMsg)
END_MESSAGE_MAP()

// ---- Construction.

CQVPsdOptionWnd::CQVPsdOptionWnd()
    : m_bEnableImportType(TRUE), m_bEnableLayer(TRUE), m_bCompileImport(TRUE), m_nRowGap(10), m_nLeft(99),
      m_nRowHeight(20), m_nLabelWidth(69), m_nComboWidth(247), m_nDropHeight(160) {
}

CQVPsdOptionWnd::~CQVPsdOptionWnd() = default;

DWORD CQVPsdOptionWnd::GetMinHeight() {
    const int heightPx = m_nRowGap + m_nRowHeight + m_nRowGap + m_nRowHeight;
    return static_cast<DWORD>(heightPx);
}

void CQVPsdOptionWnd::DelayControls() {
    m_bDelayControls = TRUE;
}

int CQVPsdOptionWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CQVDialogPanel::OnCreate(lpCreateStruct) == -1)
        return -1;
    m_bCompileImport = TRUE;
    AttachSkin(this);
    if (!m_bDelayControls)
        CRows(*this).Ensure();
    return 0;
}

void CQVPsdOptionWnd::CRows::Ensure() {
    CQVPsdOptionWnd& p = m_panel;
    if (!p.GetSafeHwnd() || p.m_stcImportType.GetSafeHwnd())
        return;
    p.ModifyStyleEx(0, WS_EX_CONTROLPARENT); // the tab key goes through the dialog's panels
    Make(p.m_stcImportType, kImportTypeLabelId, L"IDS_FILEDLG_IMPORTTYPE", p.m_cmbImportType,
         kImportTypeComboId);
    p.m_cmbImportType.InsertString(kRenderImport, LWLoadString(L"IDS_FILEDLG_RENDERIMP"));
    p.m_cmbImportType.InsertString(kLayerImport, LWLoadString(L"IDS_FILEDLG_LAYERIMP"));
    p.m_cmbImportType.SetCurSel(kRenderImport);
    Make(p.m_stcLayer, kLayerLabelId, L"IDS_FILEDLG_LAYER", p.m_cmbLayer, kLayerComboId);
    p.m_cmbLayer.EnableWindow(FALSE);
    // Behind the controls: they have taken a new skin's font when the rows are placed anew.
    p.DetachSkin();
    p.AttachSkin(&p);
}

void CQVPsdOptionWnd::CRows::Make(CQVStatic& label, int labelId, LPCWSTR labelKey, CQVComboBox& combo,
                                  int comboId) {
    CFont* const font = QV_GetSysFont(QVFONT_UI, m_dpi);
    if (!label.Create(LWLoadString(labelKey), kLabelStyle, CRect(), &m_panel, labelId))
        return;
    label.SetFont(font);
    label.SetBkColorIndex(QVCLR_WINDOW);
    if (!combo.Create(kComboStyle, CRect(0, 0, 0, Px(m_panel.m_nDropHeight)), &m_panel, comboId))
        return;
    combo.ModifyStyle(0, WS_TABSTOP);
    combo.SetFont(font);
    combo.SetItemHeight(0, static_cast<UINT>(Px(kListRowHeightPx)));
}

void CQVPsdOptionWnd::CRows::Place() {
    PlaceRow(m_panel.m_stcImportType, m_panel.m_cmbImportType, 0);
    PlaceRow(m_panel.m_stcLayer, m_panel.m_cmbLayer, m_panel.m_nRowHeight + m_panel.m_nRowGap);
}

void CQVPsdOptionWnd::CRows::PlaceRow(CWnd& label, CQVComboBox& combo, int topPx) {
    const CQVPsdOptionWnd& p = m_panel;
    const int comboLeft = p.m_nLeft + p.m_nLabelWidth + kLabelToComboGapPx;
    if (label.GetSafeHwnd())
        label.MoveWindow(Px(p.m_nLeft), Px(topPx), Px(p.m_nLabelWidth), Px(p.m_nRowHeight));
    if (!combo.GetSafeHwnd())
        return;
    // A combo box takes the height of its dropped list.
    combo.MoveWindow(Px(comboLeft), Px(topPx), Px(p.m_nComboWidth), Px(p.m_nRowHeight + p.m_nDropHeight));
    FitClosedHeight(combo, Px(p.m_nRowHeight));
}

void CQVPsdOptionWnd::OnSize(UINT nType, int cx, int cy) {
    CQVDialogPanel::OnSize(nType, cx, cy);
    CRows rows(*this);
    if (cx > 0 || cy > 0) { // most dialogs never show the panel: nothing is placed before
        rows.Ensure();
        rows.Place();
    }
    rows.Enable();
}

void CQVPsdOptionWnd::OnSkinChange(UINT reason, HWND wnd) {
    CQVDialogPanel::OnSkinChange(reason, wnd);
    CRows(*this).Place();
}

// ---- A document.

// By value: the exported signature is kept.
void CQVPsdOptionWnd::ReadPsdFile(CString strPath) { // NOLINT(performance-unnecessary-value-param)
    CRows rows(*this);
    rows.Ensure();
    m_arrLayerName.RemoveAll();
    if (!_qv_commonclass::CQVVideoPlay::GetPsdLayerInfo(strPath, m_arrLayerName) || !m_cmbLayer.GetSafeHwnd())
        return;
    rows.ListLayers();
    rows.KeepChecks();
}

// The top layer, which the document stores last, stands first and is the current entry. Entries are appended: putting
// each one before all others takes seconds for a document of tens of thousands of layers.
void CQVPsdOptionWnd::CRows::ListLayers() {
    CQVCheckComboBox& list = m_panel.m_cmbLayer;
    const CStringArray& names = m_panel.m_arrLayerName;
    list.SendMessage(WM_CLEAR);
    list.SetRedraw(FALSE);
    list.ResetContent();
    for (INT_PTR i = names.GetSize() - 1; i >= 0; --i)
        list.AddString(names.GetAt(i));
    list.CheckAll(TRUE);
    if (names.GetSize() > 0)
        list.SetCurSel(0);
    list.SetRedraw(TRUE);
    list.Invalidate(FALSE);
}

// ---- Choices of the user and of the host.

void CQVPsdOptionWnd::CRows::KeepChecks() {
    const int count = m_panel.m_cmbLayer.GetCount();
    m_panel.m_vecLayerCheck.clear();
    for (int i = 0; i < count; ++i)
        m_panel.m_vecLayerCheck.push_back(m_panel.m_cmbLayer.GetCheck(i) ? 1 : 0);
}

bool CQVPsdOptionWnd::CRows::IsLayerImportChosen() const {
    return m_panel.m_cmbImportType.GetSafeHwnd() && m_panel.m_cmbImportType.GetCurSel() == kLayerImport;
}

void CQVPsdOptionWnd::CRows::Enable() {
    if (m_panel.m_cmbImportType.GetSafeHwnd())
        m_panel.m_cmbImportType.EnableWindow(m_panel.m_bEnableImportType);
    if (m_panel.m_cmbLayer.GetSafeHwnd())
        m_panel.m_cmbLayer.EnableWindow(m_panel.m_bEnableLayer && IsLayerImportChosen());
}

void CQVPsdOptionWnd::EnableLayerInfo(BOOL bEnable) {
    m_bEnableLayer = bEnable;
    CRows(*this).Enable();
}

void CQVPsdOptionWnd::EnableCompileImportType(BOOL bEnable) {
    m_bEnableImportType = bEnable;
    CRows(*this).Enable();
}

BOOL CQVPsdOptionWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (LOWORD(wParam) == kImportTypeComboId && HIWORD(wParam) == CBN_SELCHANGE) {
        CRows rows(*this);
        m_bCompileImport = !rows.IsLayerImportChosen();
        if (!m_bCompileImport)
            rows.KeepChecks();
        rows.Enable();
    }
    return CQVDialogPanel::OnCommand(wParam, lParam);
}

LRESULT CQVPsdOptionWnd::OnCloseUpMsg(WPARAM, LPARAM) {
    CRows(*this).KeepChecks();
    return 0;
}

// ---- Results.

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

// ---- Release.

// The names outlive the window: the host asks for them when the dialog is gone.
void CQVPsdOptionWnd::OnDestroy() {
    if (m_cmbLayer.GetSafeHwnd() && !m_bCompileImport)
        CRows(*this).KeepChecks();
    CQVDialogPanel::OnDestroy();
}

} // namespace _qv_commonwnd
