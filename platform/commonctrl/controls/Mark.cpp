#include "Mark.h"

#include "skin/SkinPicture.h"

namespace _qv_commonctrl {

namespace {

constexpr int kCornerPx = 2;
constexpr int kBorderColor = QVCLR_SCROLL_THUMB; // stands out from the ground more than a button's border

constexpr wchar_t kCheckImage[] = L"CommonCtrl\\Button\\check.png";
constexpr wchar_t kMixedImage[] = L"CommonCtrl\\Button\\mixed.png";
constexpr wchar_t kRadioImage[] = L"CommonCtrl\\Button\\radio.png";

int BorderColor(const MarkLook& look) {
    if (look.state == ControlState::Disabled)
        return QVCLR_GRID;
    return look.focused || look.state != ControlState::Normal ? static_cast<int>(QVCLR_ACCENT) : kBorderColor;
}

const wchar_t* ImageOf(const MarkLook& look) {
    if (look.shape == MarkShape::Radio)
        return kRadioImage;
    return look.check == BST_INDETERMINATE ? kMixedImage : kCheckImage;
}

} // namespace

void DrawMark(CDC* dc, const CRect& box, const MarkLook& look, UINT dpi) {
    const bool plain = look.state == ControlState::Normal || look.state == ControlState::Hot;
    BoxLook ground;
    ground.fill = plain ? QV_GetSysColor(QVCLR_LIST) : ControlFill(look.state);
    ground.border = QV_GetSysColor(BorderColor(look));
    ground.borderPx = QV_ScaleForDpi(1, dpi);
    ground.radiusPx = QV_ScaleForDpi(kCornerPx, dpi);
    if (look.shape == MarkShape::Radio)
        DrawDisc(dc, box, ground);
    else
        DrawBox(dc, box, ground);
    if (look.check == BST_UNCHECKED)
        return;
    const SkinPicture mark(ImageOf(look), QVIMAGE_STATES, dpi);
    const CSize size = mark.Size();
    mark.Draw(dc, static_cast<int>(look.state), box.left + (box.Width() - size.cx) / 2,
              box.top + (box.Height() - size.cy) / 2);
}

} // namespace _qv_commonctrl
