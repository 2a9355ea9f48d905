#include "SkinFixture.h"

#include "LeakGuard.h"
#include "Picture.h"

using namespace _qv_commonctrl;
using qvtest::Picture;

namespace {

// A bitmap to draw on, 40 x 40, black.
class Canvas {
  public:
    Canvas() {
        const HDC screen = GetDC(nullptr);
        m_bitmap.Attach(CreateCompatibleBitmap(screen, 40, 40));
        dc.Attach(CreateCompatibleDC(screen));
        ReleaseDC(nullptr, screen);
        m_former = dc.SelectObject(&m_bitmap);
        dc.FillSolidRect(0, 0, 40, 40, RGB(0, 0, 0));
    }
    ~Canvas() { dc.SelectObject(m_former); }

    Picture picture() {
        dc.SelectObject(m_former);
        const Picture result = Picture::ofBitmap(m_bitmap);
        dc.SelectObject(&m_bitmap);
        return result;
    }

    CDC dc;

  private:
    CBitmap m_bitmap;
    CBitmap* m_former;
};

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kKey = RGB(255, 0, 255);

TEST(MemoDC, CopiesOnceAtTheEnd) {
    Canvas canvas;
    {
        CQVMemoDC dc(&canvas.dc, CRect(5, 6, 15, 16));
        dc.FillSolidRect(0, 0, 40, 40, kRed);
        EXPECT_EQ(0, canvas.picture().count(kRed));
    }
    const Picture picture = canvas.picture();
    EXPECT_EQ(100, picture.count(kRed));
    EXPECT_EQ(kRed, picture.at(5, 6));
    EXPECT_EQ(kRed, picture.at(14, 15));
}

TEST(MemoDC, CopiesOnlyInsideTheClip) {
    Canvas canvas;
    canvas.dc.IntersectClipRect(8, 8, 12, 12);
    {
        CQVMemoDC dc(&canvas.dc, CRect(0, 0, 40, 40));
        dc.FillSolidRect(0, 0, 40, 40, kRed);
    }
    canvas.dc.SelectClipRgn(nullptr);
    EXPECT_EQ(16, canvas.picture().count(kRed));
}

TEST(MemoDC, SharesTheTargetsOrigin) {
    Canvas canvas;
    canvas.dc.SetViewportOrg(10, 10);
    {
        CQVMemoDC dc(&canvas.dc, CRect(0, 0, 5, 5));
        dc.SetPixelV(0, 0, kRed);
        dc.SetPixelV(4, 4, kRed);
    }
    canvas.dc.SetViewportOrg(0, 0);
    EXPECT_EQ(kRed, canvas.picture().at(10, 10));
    EXPECT_EQ(kRed, canvas.picture().at(14, 14));
}

TEST(MemoDC, OtherMapModesDrawStraight) {
    Canvas canvas;
    canvas.dc.SetMapMode(MM_ANISOTROPIC);
    canvas.dc.SetWindowExt(1, 1);
    canvas.dc.SetViewportExt(2, 2);
    {
        CQVMemoDC dc(&canvas.dc, CRect(0, 0, 5, 5));
        dc.FillSolidRect(0, 0, 5, 5, kRed);
    }
    EXPECT_EQ(100, canvas.picture().count(kRed));
}

TEST(MemoDC, KeyColourStaysOut) {
    Canvas canvas;
    {
        CQVMemoDC dc(&canvas.dc, CRect(0, 0, 10, 10));
        dc.FillSolidRect(0, 0, 10, 10, kKey);
        dc.FillSolidRect(2, 2, 3, 3, kRed);
        dc.CopyTransparent(kKey);
        dc.FillSolidRect(0, 0, 10, 10, RGB(0, 255, 0)); // after the copy nothing counts
    }
    const Picture picture = canvas.picture();
    EXPECT_EQ(9, picture.count(kRed));
    EXPECT_EQ(0, picture.count(kKey));
    EXPECT_EQ(0, picture.count(RGB(0, 255, 0)));
}

TEST(MemoDC, CancelCopiesNothing) {
    Canvas canvas;
    {
        CQVMemoDC dc(&canvas.dc, CRect(0, 0, 10, 10));
        dc.FillSolidRect(0, 0, 10, 10, kRed);
        dc.Cancel();
    }
    EXPECT_EQ(0, canvas.picture().count(kRed));
}

TEST(MemoDC, NestedObjectsHavePicturesOfTheirOwn) {
    Canvas canvas;
    {
        CQVMemoDC outer(&canvas.dc, CRect(0, 0, 20, 20));
        outer.FillSolidRect(0, 0, 20, 20, kRed);
        {
            CQVMemoDC inner(&outer, CRect(5, 5, 10, 10));
            inner.FillSolidRect(5, 5, 5, 5, RGB(0, 0, 255));
        }
    }
    const Picture picture = canvas.picture();
    EXPECT_EQ(375, picture.count(kRed));
    EXPECT_EQ(25, picture.count(RGB(0, 0, 255)));
}

TEST(MemoDC, StartsCleanEachTime) {
    Canvas canvas;
    CFont font;
    font.CreatePointFont(200, L"Arial");
    canvas.dc.SelectObject(&font);
    {
        CQVMemoDC dc(&canvas.dc, CRect(0, 0, 10, 10));
        EXPECT_EQ(static_cast<HFONT>(font), ::GetCurrentObject(dc, OBJ_FONT));
        dc.SetTextColor(kRed);
        dc.SetViewportOrg(3, 3);
        dc.SetBkMode(TRANSPARENT);
    }
    canvas.dc.SelectObject(
        static_cast<CFont*>(CFont::FromHandle(static_cast<HFONT>(GetStockObject(SYSTEM_FONT)))));
    CQVMemoDC dc(&canvas.dc, CRect(0, 0, 10, 10));
    EXPECT_EQ(RGB(0, 0, 0), dc.GetTextColor());
    EXPECT_EQ(OPAQUE, dc.GetBkMode());
    EXPECT_NE(static_cast<HFONT>(font), ::GetCurrentObject(dc, OBJ_FONT));
}

TEST(MemoDC, BadTargetsAreHarmless) {
    CDC empty;
    for (CDC* target : {static_cast<CDC*>(nullptr), &empty}) {
        CQVMemoDC dc(target, CRect(0, 0, 10, 10));
        dc.FillSolidRect(0, 0, 10, 10, kRed);
        dc.CopyTransparent(kKey);
    }
    Canvas canvas;
    { CQVMemoDC dc(&canvas.dc, CRect(10, 10, 0, 0)); }
    { CQVMemoDC dc(&canvas.dc, CRect(0, 0, 0, 0)); }
    { CQVMemoDC dc(&canvas.dc, CRect(INT_MIN / 2, INT_MIN / 2, INT_MAX / 2, INT_MAX / 2)); }
}

TEST(MemoDC, LeavesNothingBehind) {
    Canvas canvas;
    qvtest::expectNoLeak(500, [&] {
        CQVMemoDC outer(&canvas.dc, CRect(0, 0, 40, 40));
        CQVMemoDC inner(&outer, CRect(5, 5, 10, 10));
        inner.FillSolidRect(0, 0, 10, 10, kRed);
    });
}

TEST(MenuEx, ReadsAndRewritesItems) {
    CMenu popUp;
    popUp.CreatePopupMenu();
    popUp.AppendMenu(MF_STRING, 20, L"inner");
    CQVMenuEx menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING | MF_CHECKED | MF_GRAYED, 10, L"one");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popUp.Detach()), L"pop-up");
    CString text = L"before";
    EXPECT_EQ(3, menu.GetMenuStringW(0, text, MF_BYPOSITION));
    EXPECT_STREQ(L"one", text);
    EXPECT_EQ(0, menu.GetMenuStringW(1, text, MF_BYPOSITION));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(0, menu.GetMenuStringW(9, text, MF_BYPOSITION));
    EXPECT_EQ(3, menu.GetMenuStringW(10, text, MF_BYCOMMAND));

    EXPECT_TRUE(menu.ModifyMenuW(0, MF_BYPOSITION, 11, L"eins"));
    EXPECT_EQ(4, menu.GetMenuStringW(11, text, MF_BYCOMMAND));
    EXPECT_STREQ(L"eins", text);
    const UINT state = menu.GetMenuState(0, MF_BYPOSITION);
    EXPECT_TRUE(state & MF_CHECKED);
    EXPECT_TRUE(state & MF_GRAYED);

    EXPECT_TRUE(menu.ModifyMenuW(2, MF_BYPOSITION, static_cast<UINT_PTR>(-1), L"Untermen\u00FC"));
    EXPECT_EQ(9, menu.GetMenuStringW(2, text, MF_BYPOSITION));
    ASSERT_NE(nullptr, ::GetSubMenu(menu, 2));
    EXPECT_EQ(20u, ::GetMenuItemID(::GetSubMenu(menu, 2), 0));
    EXPECT_FALSE(menu.ModifyMenuW(9, MF_BYPOSITION, 1, L"x"));
    EXPECT_TRUE(menu.ModifyMenuW(0, MF_BYPOSITION, 11, nullptr));
    const std::wstring longText(5000, L'x');
    EXPECT_TRUE(menu.ModifyMenuW(0, MF_BYPOSITION, 11, longText.c_str()));
    EXPECT_EQ(5000, menu.GetMenuStringW(0, text, MF_BYPOSITION));
}

TEST(MenuEx, WithoutMenuNothingHappens) {
    CQVMenuEx menu;
    CString text = L"before";
    EXPECT_EQ(0, menu.GetMenuStringW(0, text, MF_BYPOSITION));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_FALSE(menu.ModifyMenuW(0, MF_BYPOSITION, 1, L"x"));
}

} // namespace
