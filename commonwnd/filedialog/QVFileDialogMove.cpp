// CQVFileDialog: the system's controls below the painted caption.
#include "QVFileDialog.h"

#include "FileDialogIds.h"
#include "FileDialogLayout.h"

namespace _qv_commonwnd {

namespace {

constexpr UINT kSizeOnly = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;

CRect PlaceOf(HWND child) {
    CRect place;
    ::GetWindowRect(child, &place);
    ::MapWindowPoints(nullptr, ::GetParent(child), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

} // namespace

void CQVFileDialog::PlaceMoved(HWND child, const CRect& place) {
    if (child)
        ::MoveWindow(child, place.left, place.top, place.Width(), place.Height(), TRUE);
}

void CQVFileDialog::MoveChild(HWND child) {
    if (child)
        PlaceMoved(child, MovedControl(PlaceOf(child), Dpi()));
}

void CQVFileDialog::MoveItems() {
    const HWND frame = Frame();
    if (!frame)
        return;
    CRect window;
    ::GetWindowRect(frame, &window);
    ::SetWindowPos(frame, nullptr, 0, 0, window.Width(), window.Height() + FrameGrowth(Dpi()), kSizeOnly);
    if (PlanOpenButton(m_dwOption) == OpenButtonPlace::Widened) {
        MoveButtonsBeside();
    } else {
        MoveOpenButton();
        MoveChild(::GetDlgItem(frame, kCancelButtonId));
    }
    for (const int id :
         {kFileNameLabelId, kFileTypeLabelId, kFileTypeComboId, kFileNameComboId, kHelpButtonId})
        MoveChild(::GetDlgItem(frame, id));
    MoveTopControls();
}

void CQVFileDialog::MoveOpenButton() {
    const HWND open = ::GetDlgItem(Frame(), kOpenButtonId);
    if (!open)
        return;
    switch (PlanOpenButton(m_dwOption)) {
    case OpenButtonPlace::Hidden:
        ::ShowWindow(open, SW_HIDE);
        PlaceMoved(m_wndForderImport.m_hWnd, MovedControl(PlaceOf(open), Dpi()));
        m_wndForderImport.ShowWindow(SW_SHOW);
        break;
    case OpenButtonPlace::Stays:
        break;
    default:
        MoveChild(open);
        break;
    }
}

// Open, Cancel and below them the folder import panel, of one width.
void CQVFileDialog::MoveButtonsBeside() {
    CRect cancelPlace;
    for (const int id : {kOpenButtonId, kCancelButtonId}) {
        const HWND button = ::GetDlgItem(Frame(), id);
        if (!button)
            continue;
        cancelPlace = WidenedButton(MovedControl(PlaceOf(button), Dpi()), Dpi());
        PlaceMoved(button, cancelPlace);
    }
    if (!m_wndForderImport.m_hWnd)
        return;
    PlaceMoved(m_wndForderImport.m_hWnd, ImportPanelBelow(cancelPlace, Dpi()));
    m_wndForderImport.ShowWindow(SW_SHOW);
}

void CQVFileDialog::MoveTopControls() {
    const HWND frame = Frame();
    for (const int id : {kLookInLabelId, kLookInComboId, kPlacesBarId})
        MoveChild(::GetDlgItem(frame, id));
    if (m_pShellViewHolder)
        MoveChild(m_pShellViewHolder->m_hWnd);
    MoveChild(ViewToolBarOf(frame));
}

} // namespace _qv_commonwnd
