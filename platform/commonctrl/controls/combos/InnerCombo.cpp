#include "InnerCombo.h"

#include "ComboRow.h"

namespace _qv_commonctrl {

namespace {

constexpr int kMostEntryText = 512; // characters shown of an entry
constexpr int kIndentPx = 10;       // one step of indentation
constexpr int kImageInsetPx = 4;    // from the row's edge to its image
constexpr int kImageToTextPx = 1;   // beyond the text's own inset

} // namespace

InnerCombo::~InnerCombo() {
    if (m_hWnd)
        UnsubclassWindow();
}

void InnerCombo::Attach() {
    const auto combo = reinterpret_cast<HWND>(::SendMessageW(m_outer, CBEM_GETCOMBOCONTROL, 0, 0));
    if (combo && !CWnd::FromHandlePermanent(combo))
        SubclassWindow(combo);
}

void InnerCombo::DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) {
    wchar_t text[kMostEntryText] = L"";
    COMBOBOXEXITEMW entry = {};
    entry.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_SELECTEDIMAGE | CBEIF_INDENT;
    entry.iItem = item;
    entry.pszText = text;
    entry.cchTextMax = kMostEntryText;
    FillComboRow(dc, rect, itemState);
    if (item < 0 || !::SendMessageW(m_outer, CBEM_GETITEMW, 0, reinterpret_cast<LPARAM>(&entry)))
        return;
    CRect place(rect);
    if (!(itemState & ODS_COMBOBOXEDIT))
        place.left += entry.iIndent * QV_ScalePx(m_hWnd, kIndentPx);
    DrawImage(dc, entry, itemState, place);
    DrawComboText(dc, m_hWnd, text, place, itemState);
}

// Takes the image's room from `place`.
void InnerCombo::DrawImage(CDC* dc, const COMBOBOXEXITEMW& entry, UINT itemState, CRect& place) const {
    const auto images = reinterpret_cast<HIMAGELIST>(::SendMessageW(m_outer, CBEM_GETIMAGELIST, 0, 0));
    int width = 0;
    int height = 0;
    if (!images || !::ImageList_GetIconSize(images, &width, &height))
        return;
    const int image = itemState & ODS_SELECTED ? entry.iSelectedImage : entry.iImage;
    place.left += QV_ScalePx(m_hWnd, kImageInsetPx);
    ::ImageList_Draw(images, image, *dc, place.left, place.top + (place.Height() - height) / 2,
                     ILD_TRANSPARENT);
    place.left += width + QV_ScalePx(m_hWnd, kImageToTextPx);
}

} // namespace _qv_commonctrl
