#include "ControlArrangement.h"

#include "FileDialogLayout.h"
#include "SystemControls.h"

#include <QVSkin.h>

namespace _qv_commonwnd {

namespace {

class CArrangement {
  public:
    CArrangement(HWND frame, DWORD options, HWND importPanel)
        : m_frame(frame), m_openButton(PlanOpenButton(options)), m_importPanel(importPanel),
          m_dpi(_qv_commonctrl::QV_GetWindowDpi(frame)) {}

    void Run() const {
        GrowFrame(m_frame, FrameGrowth(m_dpi));
        if (m_openButton == OpenButtonPlace::Widened) {
            StackButtons();
        } else {
            MoveOpenButton();
            MoveDown(::GetDlgItem(m_frame, kCancelButtonId));
        }
        for (const int id : {kFileNameLabelId, kFileTypeLabelId, kFileTypeComboId, kFileNameComboId,
                             kHelpButtonId, kLookInLabelId, kLookInComboId, kPlacesBarId, kListHolderId})
            MoveDown(::GetDlgItem(m_frame, id));
        MoveDown(ViewToolBarOf(m_frame));
    }

  private:
    static CRect PlaceOf(HWND control) {
        CRect place;
        ::GetWindowRect(control, &place);
        ::MapWindowPoints(nullptr, ::GetParent(control), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }

    CRect PlaceBelowCaption(HWND control) const { return MovedControl(PlaceOf(control), m_dpi); }

    static void Place(HWND control, const CRect& place) {
        if (control)
            ::MoveWindow(control, place.left, place.top, place.Width(), place.Height(), TRUE);
    }

    void MoveDown(HWND control) const {
        if (control)
            Place(control, PlaceBelowCaption(control));
    }

    void ShowImportPanel(const CRect& place) const {
        Place(m_importPanel, place);
        if (m_importPanel)
            ::ShowWindow(m_importPanel, SW_SHOW);
    }

    void MoveOpenButton() const {
        const HWND open = ::GetDlgItem(m_frame, kOpenButtonId);
        if (open && m_openButton == OpenButtonPlace::Hidden) {
            ::ShowWindow(open, SW_HIDE);
            ShowImportPanel(PlaceBelowCaption(open));
        } else if (m_openButton != OpenButtonPlace::Stays) {
            MoveDown(open);
        }
    }

    // Open, Cancel and below them the folder import panel, of one width.
    void StackButtons() const {
        CRect last;
        for (const int id : {kOpenButtonId, kCancelButtonId}) {
            const HWND button = ::GetDlgItem(m_frame, id);
            if (!button)
                continue;
            last = WidenedButton(PlaceBelowCaption(button), m_dpi);
            Place(button, last);
        }
        ShowImportPanel(ImportPanelBelow(last, m_dpi));
    }

    HWND m_frame;
    OpenButtonPlace m_openButton;
    HWND m_importPanel;
    UINT m_dpi;
};

} // namespace

void ArrangeControls(HWND frame, DWORD options, HWND importPanel) {
    if (frame)
        CArrangement(frame, options, importPanel).Run();
}

} // namespace _qv_commonwnd
