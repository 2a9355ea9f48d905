#include "QVComboLBoxEx.h"

#include "QVComboBoxSt.h"

#include <QVSkin.h>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

// Pixels at 96 DPI.
constexpr int kAfterRowHeightPx = 2; // the text's column begins this far behind a square of the row's height
constexpr int kTextIndentPx = 22;
constexpr int kDepthIndentPx = 13;
constexpr int kIconBeforeTextPx = 20;
constexpr int kIconSizePx = 16;

} // namespace

IMPLEMENT_DYNAMIC(CQVComboLBoxEx, CQVComboLBox)

CQVComboLBoxEx::CQVComboLBoxEx() : m_bSimple(FALSE), m_pOwnerCombo(nullptr) {
}

CQVComboLBoxEx::~CQVComboLBoxEx() = default;

void CQVComboLBoxEx::DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) {
    if (!m_pOwnerCombo || item < 0 || item >= GetCount()) {
        CQVComboLBox::DrawEntry(dc, item, rect, itemState);
        return;
    }
    auto px = [this](int px96) { return QV_ScalePx(m_hWnd, px96); };
    const bool selected = (itemState & ODS_SELECTED) != 0;
    const int ground = selected ? QVCLR_SELECTION : QVCLR_COMBO_LIST;
    const int color = itemState & ODS_DISABLED ? QVCLR_TEXT_DISABLED
                      : selected               ? QVCLR_TEXT_SELECTED
                                               : QVCLR_TEXT_WINDOW;
    dc->FillSolidRect(rect, QV_GetSysColor(ground));
    CRect text(rect);
    text.left += rect.Height() + px(kAfterRowHeightPx) + px(kTextIndentPx) +
                 m_pOwnerCombo->Folders().Depth(item) * px(kDepthIndentPx);
    const int size = px(kIconSizePx);
    DrawFolderText(dc, m_pOwnerCombo->Folders().Text(item), text, QV_GetSysColor(color),
                   QV_GetWindowDpi(m_hWnd));
    if (const HICON icon = m_pOwnerCombo->Folders().Icon(item))
        ::DrawIconEx(dc->GetSafeHdc(), text.left - px(kIconBeforeTextPx),
                     rect.top + (rect.Height() - size) / 2, icon, size, size, 0, nullptr, DI_NORMAL);
}

} // namespace _qv_commonwnd
