#include "QVListView.h"

#include "QVFileDialogDefs.h"

#include <QVMemoDC.h>
#include <QVReplaceWnd.h>
#include <QVSkin.h>

#include <algorithm>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

const UINT g_nSelectionSettled = ::RegisterWindowMessageW(L"QVCommonWndU.SelectionSettled");

}

IMPLEMENT_DYNAMIC(CQVListView, CWnd)

BEGIN_MESSAGE_MAP(CQVListView, CWnd)
    ON_WM_NCPAINT()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_CTLCOLOR()
    ON_WM_VSCROLL()
    ON_MESSAGE(WM_QV_LISTSKIN, &CQVListView::OnListSkin)
    ON_REGISTERED_MESSAGE(g_nSelectionSettled, &CQVListView::OnSelectionSettled)
END_MESSAGE_MAP()

namespace {

constexpr UINT kListMessages = 0x100;

// Messages at which the list moves its pixels on the screen, the border among them.
bool MovesPixels(UINT message) {
    switch (message) {
    case WM_VSCROLL:
    case WM_HSCROLL:
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
    case WM_KEYDOWN:
    case LVM_SCROLL:
    case LVM_ENSUREVISIBLE:
        return true;
    default:
        return false;
    }
}

// Messages about items and looks: they come by the million while a shell's view collects what is selected, and each
// layer before the list costs more than the list's answer. What they change is painted, which nobody misses.
bool IsAboutItems(UINT message) {
    switch (message) {
    case LVM_SETVIEW:
    case LVM_INSERTCOLUMNA:
    case LVM_INSERTCOLUMNW:
    case LVM_DELETECOLUMN:
    case LVM_SETCOLUMNWIDTH:
    case LVM_SCROLL:
    case LVM_ENSUREVISIBLE:
    case LVM_ARRANGE:
    case LVM_SETBKIMAGEA:
    case LVM_SETBKIMAGEW:
    case LVM_EDITLABELA:
    case LVM_EDITLABELW:
        return false;
    default:
        return message >= LVM_FIRST && message < LVM_FIRST + kListMessages;
    }
}

// Messages after which the owner may answer otherwise.
bool ChangesItems(UINT message) {
    switch (message) {
    case LVM_SETITEMA:
    case LVM_SETITEMW:
    case LVM_SETITEMTEXTA:
    case LVM_SETITEMTEXTW:
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
    case LVM_DELETEITEM:
    case LVM_DELETEALLITEMS:
    case LVM_SORTITEMS:
    case LVM_SORTITEMSEX:
    case LVM_SETITEMCOUNT:
    case LVM_SETIMAGELIST:
    case LVM_UPDATE:
    case LVM_REDRAWITEMS:
        return true;
    default:
        return false;
    }
}

CPoint Origin(HWND list) {
    return CPoint(::GetScrollPos(list, SB_HORZ), ::GetScrollPos(list, SB_VERT));
}

} // namespace

CQVListView::CQVListView() = default;

CQVListView::~CQVListView() = default;

void CQVListView::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    AttachSkin(this);
    m_bSelectionAsked = false;
}

void CQVListView::OnSkinChange(UINT reason, HWND wnd) {
    ApplyColors();
    CQVBaseCtrl::OnSkinChange(reason, wnd);
}

// Setting a colour repaints the list, so it is set only when it is another one.
void CQVListView::ApplyColors() {
    const auto ground = static_cast<LPARAM>(QV_GetSysColor(QVCLR_LIST));
    const auto text = static_cast<LPARAM>(QV_GetSysColor(QVCLR_TEXT_LIST));
    if (SendMessage(LVM_GETBKCOLOR) != ground)
        SendMessage(LVM_SETBKCOLOR, 0, ground);
    if (SendMessage(LVM_GETTEXTBKCOLOR) != ground)
        SendMessage(LVM_SETTEXTBKCOLOR, 0, ground);
    if (SendMessage(LVM_GETTEXTCOLOR) != text)
        SendMessage(LVM_SETTEXTCOLOR, 0, text);
}

void CQVListView::TakeHeader() {
    if (!m_pHeader || m_pHeader->m_hWnd)
        return;
    const auto header = reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER));
    if (header && !FromHandlePermanent(header))
        m_pHeader->SubclassWindow(header);
}

LRESULT CQVListView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_pfnList && IsAboutItems(message))
        return OnItemMessage(message, wParam, lParam);
    const bool moving = MovesPixels(message);
    const CPoint before = moving ? Origin(m_hWnd) : CPoint();
    const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
    if (moving && m_hWnd && Origin(m_hWnd) != before)
        Invalidate(FALSE);
    switch (message) {
    case LVM_INSERTCOLUMNW:
    case LVM_INSERTCOLUMNA:
    case LVM_SETVIEW:
    case WM_STYLECHANGED: // another view: the list repaints its items only, not where they were
        TakeHeader();
        Invalidate(FALSE);
        break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE: // the selection changes its colour
        Invalidate(FALSE);
        break;
    }
    return result;
}

LRESULT CQVListView::OnItemMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!ChangesItems(message))
        return ::CallWindowProcW(m_pfnList, m_hWnd, message, wParam, lParam);
    ForgetAnswers();
    const LRESULT result = ::CallWindowProcW(m_pfnList, m_hWnd, message, wParam, lParam);
    ForgetAnswers(); // the list may have asked meanwhile
    return result;
}

void CQVListView::ForgetAnswers() {
    if (m_pAnswers)
        m_pAnswers->Forget();
}

// The shell's view sends its list's notifications back to the list.
BOOL CQVListView::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_NOTIFY || !pResult)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    switch (static_cast<int>(reinterpret_cast<const NMHDR*>(lParam)->code)) {
    case static_cast<int>(NM_CUSTOMDRAW):
        *pResult = QV_PaintListItem(*reinterpret_cast<NMLVCUSTOMDRAW*>(lParam));
        return TRUE;
    case static_cast<int>(LVN_ITEMCHANGED):
        NoteItemChange(*reinterpret_cast<const NMLISTVIEW*>(lParam));
        return FALSE; // the view wants to know, too
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

void CQVListView::NoteItemChange(const NMLISTVIEW& change) {
    const bool isSelection =
        (change.uChanged & LVIF_STATE) && ((change.uOldState ^ change.uNewState) & LVIS_SELECTED);
    if (isSelection && !m_bSelectionAsked)
        m_bSelectionAsked = PostMessage(g_nSelectionSettled) != FALSE;
}

LRESULT CQVListView::OnSelectionSettled(WPARAM, LPARAM) {
    m_bSelectionAsked = false;
    if (m_selectionAction)
        m_selectionAction();
    return 0;
}

// The corner between the bars is the skinned bars' (QV_SetReplaceCorner).
void CQVListView::OnNcPaint() {
    Default();
    CRect window;
    CRect client;
    GetWindowRect(&window);
    GetClientRect(&client);
    if (window.Size() != client.Size())
        Invalidate(FALSE);
}

BOOL CQVListView::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CQVListView::OnPaint() {
    if (GetCurrentMessage()->wParam) { // somebody else's picture
        Default();
        return;
    }
    ApplyColors();
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    CQVMemoDC memory(&paint, client);
    memory.FillSolidRect(client, QV_GetSysColor(QVCLR_LIST));
    DefWindowProc(WM_PAINT, reinterpret_cast<WPARAM>(memory.GetSafeHdc()), 0);
    const std::vector<CPoint> icons = IconDotsAt(memory, client.top);
    std::vector<COLORREF> colors;
    for (const CPoint& dot : icons)
        colors.push_back(memory.GetPixel(dot));
    CBrush border(QV_GetSysColor(QVCLR_LIST_FRAME));
    memory.FrameRect(client, &border);
    for (std::size_t i = 0; i < icons.size(); ++i)
        memory.SetPixel(icons[i], colors[i]);
}

// The dots of icons in one line: the icons of the first row stand at the list's very top, where its border runs.
std::vector<CPoint> CQVListView::IconDotsAt(CDC& dc, int y) {
    std::vector<CPoint> dots;
    CRect client;
    GetClientRect(&client);
    const COLORREF ground = QV_GetSysColor(QVCLR_LIST);
    const bool inColumns = (GetStyle() & LVS_TYPEMASK) == LVS_LIST;
    const LRESULT count = SendMessage(LVM_GETITEMCOUNT);
    const LRESULT step = inColumns ? std::max<LRESULT>(1, SendMessage(LVM_GETCOUNTPERPAGE)) : 1;
    for (LRESULT item = inColumns ? SendMessage(LVM_GETTOPINDEX) : 0; item < count; item += step) {
        CRect icon;
        icon.left = LVIR_ICON;
        if (!SendMessage(LVM_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&icon)) ||
            icon.top > y || icon.left >= client.right)
            break;
        for (int x = icon.left; x < icon.right && icon.bottom > y; ++x)
            if (dc.GetPixel(CPoint(x, y)) != ground)
                dots.emplace_back(x, y);
    }
    return dots;
}

// The field in which a name is edited in place.
HBRUSH CQVListView::OnCtlColor(CDC* pDC, CWnd*, UINT) {
    if (pDC) {
        pDC->SetTextColor(QV_GetSysColor(QVCLR_TEXT_WINDOW));
        pDC->SetBkColor(QV_GetSysColor(QVCLR_LIST));
    }
    return QV_GetSysBrush(QVBRUSH_LIST);
}

void CQVListView::OnVScroll(UINT, UINT, CScrollBar*) {
    // Asking brings the skinned bar's state up to date before the list moves.
    QVReplaceData bars;
    QV_GetReplaceData(m_hWnd, bars);
    Default();
}

LRESULT CQVListView::OnListSkin(WPARAM, LPARAM) {
    QVReplaceData bars;
    if (QV_GetReplaceData(m_hWnd, bars) && bars.bHorz) {
        ShowScrollBar(SB_HORZ, FALSE);
        ShowScrollBar(SB_HORZ, TRUE);
    }
    return 0;
}

} // namespace _qv_commonwnd
