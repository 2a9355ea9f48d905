#include "ControlFactory.h"

#include "controls/ControlSupport.h"
#include "QVButton.h"
#include "QVComboBox.h"
#include "QVComboBoxEx.h"
#include "QVEdit.h"
#include "QVListCtrl.h"
#include "QVProgressCtrl.h"
#include "QVReplaceWnd.h"
#include "QVStatic.h"
#include "QVTreeCtrl.h"
#include "skin/SkinBrushPool.h"

#include <memory>

namespace _qv_commonctrl {

namespace {

bool IsOwnerDrawnButton(HWND wnd) {
    return IsWindowOfClass(wnd, WC_BUTTONW) && (WindowStyle(wnd) & BS_TYPEMASK) == BS_OWNERDRAW;
}

template <class Control> CWnd* Make() {
    return new Control;
}

struct Wearer {
    const wchar_t* windowClass;
    CWnd* (*make)();
};
constexpr Wearer kWearers[] = {
    {WC_BUTTONW, &Make<CQVButton>},
    {WC_STATICW, &Make<CQVStatic>},
    {WC_EDITW, &Make<CQVEdit>},
    {WC_COMBOBOXW, &Make<CQVComboBox>},
    {WC_COMBOBOXEXW, &Make<CQVComboBoxEx>},
    {WC_LISTVIEWW, &Make<CQVListCtrl>},
    {WC_TREEVIEWW, &Make<CQVTreeCtrl>},
    {PROGRESS_CLASSW, &Make<CQVProgressCtrl>},
};

std::unique_ptr<CWnd> ObjectFor(HWND control) {
    for (const Wearer& wearer : kWearers) {
        if (IsWindowOfClass(control, wearer.windowClass))
            return std::unique_ptr<CWnd>(wearer.make());
    }
    return nullptr;
}

} // namespace

CWnd* MakeSkinnedControl(HWND control) {
    if (IsOwnerDrawnButton(control))
        return nullptr;
    std::unique_ptr<CWnd> object = ObjectFor(control);
    if (object && object->SubclassWindow(control))
        return object.release();
    if (IsWindowOfClass(control, WC_LISTBOXW))
        QV_ReplaceWnd(control);
    return nullptr;
}

bool HasTemplateText(HWND control) {
    if (IsWindowOfClass(control, WC_STATICW)) {
        const DWORD kind = WindowStyle(control) & SS_TYPEMASK;
        return kind != SS_ICON && kind != SS_BITMAP && kind != SS_ENHMETAFILE;
    }
    return !IsWindowOfClass(control, WC_EDITW) && !IsWindowOfClass(control, WC_COMBOBOXW) &&
           !IsWindowOfClass(control, WC_COMBOBOXEXW);
}

HBRUSH SkinCtlColor(HDC dc, HWND control, UINT ctlColor) {
    const bool enabled = !control || ::IsWindowEnabled(control);
    const bool field = ctlColor == CTLCOLOR_EDIT || ctlColor == CTLCOLOR_LISTBOX;
    const int ground = field ? QVCLR_LIST : QVCLR_WINDOW;
    ::SetTextColor(dc, QV_GetSysColor(enabled ? QVCLR_TEXT_WINDOW : QVCLR_TEXT_DISABLED));
    ::SetBkColor(dc, QV_GetSysColor(ground));
    if (field)
        return SkinColorBrush(ground);
    ::SetBkMode(dc, TRANSPARENT);
    return QV_GetSysBrush(QVBRUSH_WINDOW);
}

} // namespace _qv_commonctrl
