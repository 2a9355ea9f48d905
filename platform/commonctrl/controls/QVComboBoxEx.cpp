#include "QVComboBox.h"

#include "QVComboImpl.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVComboBoxEx, CComboBoxEx)

namespace {

constexpr int kMostEntryText = 512; // characters shown of an entry
constexpr int kIndentPx = 10;       // one step of indentation
constexpr int kImageInsetPx = 4;    // from the row's edge to its image
constexpr int kImageToTextPx = 1;   // beyond the text's own inset

// The combo box inside: the entries belong to the window round it.
class InnerCombo : public CQVComboBox {
  public:
    explicit InnerCombo(const CWnd& outer) : m_outer(outer) {}

  protected:
    void DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) override;
    BOOL HasEditField() const override { return ::SendMessageW(m_outer, CBEM_GETEDITCONTROL, 0, 0) != 0; }

  private:
    void DrawText(CDC* dc, const CString& text, CRect rect, UINT itemState) const;

    const CWnd& m_outer;
};

void InnerCombo::DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) {
    wchar_t text[kMostEntryText] = L"";
    COMBOBOXEXITEMW entry = {};
    entry.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_SELECTEDIMAGE | CBEIF_INDENT;
    entry.iItem = item;
    entry.pszText = text;
    entry.cchTextMax = kMostEntryText;
    const bool selected = (itemState & ODS_SELECTED) && !(itemState & ODS_COMBOBOXEDIT);
    if (!(itemState & ODS_COMBOBOXEDIT))
        dc->FillSolidRect(rect, QV_GetSysColor(selected ? QVCLR_SELECTION : QVCLR_COMBO_LIST));
    if (item < 0 || !::SendMessageW(m_outer, CBEM_GETITEMW, 0, reinterpret_cast<LPARAM>(&entry)))
        return;
    CRect place(rect);
    if (!(itemState & ODS_COMBOBOXEDIT))
        place.left += entry.iIndent * QV_ScalePx(m_hWnd, kIndentPx);
    const auto images = reinterpret_cast<HIMAGELIST>(::SendMessageW(m_outer, CBEM_GETIMAGELIST, 0, 0));
    int width = 0;
    int height = 0;
    if (images && ::ImageList_GetIconSize(images, &width, &height)) {
        const int image = itemState & ODS_SELECTED ? entry.iSelectedImage : entry.iImage;
        place.left += QV_ScalePx(m_hWnd, kImageInsetPx);
        ::ImageList_Draw(images, image, *dc, place.left, place.top + (place.Height() - height) / 2,
                         ILD_TRANSPARENT);
        place.left += width + QV_ScalePx(m_hWnd, kImageToTextPx);
    }
    DrawText(dc, text, place, itemState);
}

void InnerCombo::DrawText(CDC* dc, const CString& text, CRect rect, UINT itemState) const {
    constexpr int insetPx = 5;
    rect.left += QV_ScalePx(m_hWnd, insetPx);
    const bool selected = (itemState & ODS_SELECTED) && !(itemState & ODS_COMBOBOXEDIT);
    const int color = itemState & ODS_DISABLED ? QVCLR_TEXT_DISABLED
                      : selected               ? QVCLR_TEXT_SELECTED
                                               : QVCLR_TEXT_WINDOW;
    DrawTextIn(dc, text, rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS,
               WindowFontOf(m_hWnd), QV_GetSysColor(color));
}

} // namespace

class CQVComboBoxExImpl {
  public:
    explicit CQVComboBoxExImpl(const CWnd& outer) : m_inner(outer) {}
    ~CQVComboBoxExImpl() {
        if (m_inner.m_hWnd) // the outer window lives on without its object
            m_inner.UnsubclassWindow();
    }

    void Attach(HWND outer) {
        const auto combo = reinterpret_cast<HWND>(::SendMessageW(outer, CBEM_GETCOMBOCONTROL, 0, 0));
        if (combo && !CWnd::FromHandlePermanent(combo))
            m_inner.SubclassWindow(combo);
    }

  private:
    InnerCombo m_inner;
};

CQVComboBoxEx::CQVComboBoxEx() : m_pImpl(new CQVComboBoxExImpl(*this)) {
}

CQVComboBoxEx::~CQVComboBoxEx() {
    if (m_hWnd)
        DestroyWindow();
    delete m_pImpl;
}

void CQVComboBoxEx::PreSubclassWindow() {
    CComboBoxEx::PreSubclassWindow();
    AttachSkin(this);
    NoteSkinFont(reinterpret_cast<HFONT>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0)));
    m_pImpl->Attach(m_hWnd);
}

void CQVComboBoxEx::OnSkinChange(UINT reason, HWND wnd) {
    CQVBaseCtrl::OnSkinChange(reason, wnd);
    if (m_hWnd) // the field inside has no object of its own
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

LRESULT CQVComboBoxEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETFONT)
        NoteSkinFont(reinterpret_cast<HFONT>(wParam));
    if (message == WM_CTLCOLORSTATIC &&
        ::GetParent(m_hWnd)) // the ground behind the inner combo box's corners
        return ::SendMessageW(::GetParent(m_hWnd), message, wParam, reinterpret_cast<LPARAM>(m_hWnd));
    const LRESULT result = CComboBoxEx::WindowProc(message, wParam, lParam);
    if (message == WM_CREATE && result == 0)
        m_pImpl->Attach(m_hWnd);
    return result;
}

} // namespace _qv_commonctrl
