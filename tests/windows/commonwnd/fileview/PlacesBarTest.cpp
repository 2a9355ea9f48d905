// The places bar's buttons in pictures: text without an image, and how much of a text is read.
#include "fileview/ToolBarEx.h"

#include "Picture.h"

#include <QVSkin.h>

#include <gtest/gtest.h>

#include <string>

namespace filedialog_test {

using namespace _qv_commonctrl;
using qvtest::Picture;

namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 50;

// A bar with one button; it has an image number, but the bar has no images.
class Bar {
  public:
    explicit Bar(const std::wstring& text) {
        m_owner.CreateEx(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), nullptr, 0);
        const HWND bar = ::CreateWindowExW(0, L"ToolbarWindow32", L"", WS_CHILD | WS_VISIBLE | CCS_NORESIZE,
                                           0, 0, kWidth, kHeight, m_owner, nullptr, nullptr, nullptr);
        ::SendMessageW(bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
        TBBUTTON button = {};
        button.iBitmap = I_IMAGENONE;
        button.idCommand = 1;
        button.fsState = TBSTATE_ENABLED;
        button.iString = reinterpret_cast<INT_PTR>(text.c_str());
        ::SendMessageW(bar, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
        ::SendMessageW(bar, TB_SETBUTTONSIZE, 0, MAKELPARAM(kWidth, kHeight));
        m_bar.SubclassWindow(bar);
    }
    ~Bar() {
        m_bar.UnsubclassWindow();
        m_owner.DestroyWindow();
    }
    Bar(const Bar&) = delete;
    Bar& operator=(const Bar&) = delete;

    Picture Shot() {
        m_bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        return Picture::ofClient(m_bar);
    }
    CRect Button() {
        CRect rect;
        m_bar.GetToolBarCtrl().GetItemRect(0, &rect);
        return rect;
    }

  private:
    CWnd m_owner;
    _qv_commonwnd::CToolBarEx m_bar;
};

} // namespace

TEST(PlacesBar, ButtonWithoutImageShowsItsTextAtTheBottom) {
    Bar bar(L"Media");
    const Picture shot = bar.Shot();
    const CRect button = bar.Button();
    const COLORREF ground = QV_GetSysColor(QVCLR_WINDOW);
    const CRect above(button.left, button.top, button.right, button.bottom - 25);
    EXPECT_EQ(above.Width() * above.Height(), shot.count(ground, above));
    EXPECT_LT(shot.count(ground, CRect(button.left, above.bottom, button.right, button.bottom)),
              button.Width() * 25);
}

TEST(PlacesBar, TextIsReadUpToFortyUnits) {
    const std::wstring forty(40, L'i');
    const Picture whole = Bar(forty).Shot();
    EXPECT_EQ(0, Bar(forty + L"iiiiiiiiii").Shot().differences(whole)) << "what is beyond is not shown";
    EXPECT_NE(0, Bar(forty.substr(1)).Shot().differences(whole));
}

} // namespace filedialog_test
