#include "QVControlFactory.h"

#include "QVButton.h"
#include "QVComboBox.h"
#include "QVEdit.h"
#include "QVListControls.h"
#include "QVReplaceWnd.h"
#include "QVStatic.h"

#include <map>
#include <memory>
#include <string>

namespace _qv_commonctrl {

namespace {

constexpr int kMostClassName = 64; // longer names are none of ours

bool IsClass(HWND wnd, const wchar_t* name) {
    wchar_t text[kMostClassName] = L"";
    ::GetClassNameW(wnd, text, kMostClassName);
    return ::lstrcmpiW(text, name) == 0;
}

DWORD StyleOf(HWND wnd) {
    return static_cast<DWORD>(::GetWindowLongPtrW(wnd, GWL_STYLE));
}

bool IsOwnerDrawnButton(HWND wnd) {
    return (StyleOf(wnd) & BS_TYPEMASK) == BS_OWNERDRAW;
}

std::unique_ptr<CWnd> ObjectFor(HWND control) {
    if (IsClass(control, WC_BUTTONW))
        return IsOwnerDrawnButton(control) ? nullptr : std::make_unique<CQVButton>();
    if (IsClass(control, WC_STATICW))
        return std::make_unique<CQVStatic>();
    if (IsClass(control, WC_EDITW))
        return std::make_unique<CQVEdit>();
    if (IsClass(control, WC_COMBOBOXW))
        return std::make_unique<CQVComboBox>();
    if (IsClass(control, WC_COMBOBOXEXW))
        return std::make_unique<CQVComboBoxEx>();
    if (IsClass(control, WC_LISTVIEWW))
        return std::make_unique<CQVListCtrl>();
    if (IsClass(control, WC_TREEVIEWW))
        return std::make_unique<CQVTreeCtrl>();
    if (IsClass(control, PROGRESS_CLASSW))
        return std::make_unique<CQVProgressCtrl>();
    return nullptr;
}

} // namespace

CWnd* MakeSkinnedControl(HWND control) {
    std::unique_ptr<CWnd> object = ObjectFor(control);
    if (object && object->SubclassWindow(control))
        return object.release();
    if (IsClass(control, WC_LISTBOXW))
        QV_ReplaceWnd(control);
    return nullptr;
}

bool HasTemplateText(HWND control) {
    if (IsClass(control, WC_STATICW)) {
        const DWORD kind = StyleOf(control) & SS_TYPEMASK;
        return kind != SS_ICON && kind != SS_BITMAP && kind != SS_ENHMETAFILE;
    }
    return !IsClass(control, WC_EDITW) && !IsClass(control, WC_COMBOBOXW) &&
           !IsClass(control, WC_COMBOBOXEXW);
}

HBRUSH SkinColorBrush(int colorIndex) {
    static std::map<int, std::unique_ptr<CBrush>> brushes;
    static UINT generation = 0;
    if (generation != QV_GetSkinGeneration()) {
        brushes.clear();
        generation = QV_GetSkinGeneration();
    }
    std::unique_ptr<CBrush>& brush = brushes[colorIndex];
    if (!brush)
        brush = std::make_unique<CBrush>(QV_GetSysColor(colorIndex));
    return static_cast<HBRUSH>(brush->GetSafeHandle());
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
