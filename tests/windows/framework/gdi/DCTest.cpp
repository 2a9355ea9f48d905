// CDC: selection, attributes, drawing, and the device contexts of windows.
#include "LeakGuard.h"
#include "MemoryCanvas.h"
#include "PlainWindow.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF kRed = RGB(200, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 200);
constexpr COLORREF kWhite = RGB(255, 255, 255);

TEST(DC, SelectReturnsTheFormerObject) {
    MemoryCanvas canvas;
    CDC& dc = canvas.DC();
    CPen first(PS_SOLID, 1, kRed), second(PS_SOLID, 1, kBlue);
    CPen* const original = dc.SelectObject(&first);
    ASSERT_NE(nullptr, original);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), original->GetSafeHandle());
    EXPECT_EQ(&first, dc.SelectObject(&second)) << "the very object, not another for its handle";
    EXPECT_EQ(&second, dc.GetCurrentPen());
    EXPECT_EQ(&second, dc.SelectObject(original));
    EXPECT_EQ(nullptr, dc.SelectObject(static_cast<CPen*>(nullptr)));
    CPen empty;
    EXPECT_EQ(nullptr, dc.SelectObject(&empty));
    EXPECT_EQ(original->GetSafeHandle(), dc.GetCurrentPen()->GetSafeHandle()) << "nothing changed";
    EXPECT_EQ(::GetStockObject(BLACK_PEN), dc.SelectStockObject(NULL_PEN)->GetSafeHandle());
    EXPECT_EQ(&canvas.Bitmap(), dc.GetCurrentBitmap());
    CFont font;
    font.CreatePointFont(90, L"Arial");
    CFont* const formerFont = dc.SelectObject(&font);
    EXPECT_EQ(&font, dc.GetCurrentFont());
    dc.SelectObject(formerFont);
    CBrush brush(kRed);
    CGdiObject* const formerBrush = dc.SelectObject(static_cast<CGdiObject*>(&brush));
    EXPECT_EQ(&brush, dc.GetCurrentBrush());
    dc.SelectObject(formerBrush);
}

TEST(DC, RegionsSelectAsClip) {
    MemoryCanvas canvas;
    CRgn region;
    region.CreateRectRgn(2, 2, 6, 6);
    EXPECT_EQ(SIMPLEREGION, canvas.DC().SelectObject(&region));
    canvas.DC().FillSolidRect(0, 0, 16, 16, kRed);
    EXPECT_EQ(16, canvas.Count(kRed));
    EXPECT_EQ(nullptr, canvas.DC().SelectObject(static_cast<CGdiObject*>(&region)));
    EXPECT_EQ(ERROR, canvas.DC().SelectObject(static_cast<CRgn*>(nullptr)));
    canvas.DC().SelectClipRgn(nullptr);
    canvas.DC().ExcludeClipRect(CRect(0, 0, 16, 8));
    canvas.DC().FillSolidRect(0, 0, 16, 16, kBlue);
    EXPECT_EQ(128, canvas.Count(kBlue));
    EXPECT_EQ(ERROR, canvas.DC().IntersectClipRect(nullptr));
    EXPECT_FALSE(canvas.DC().RectVisible(CRect(0, 0, 4, 4)));
}

TEST(DC, RectanglesFillExactly) {
    MemoryCanvas canvas;
    CDC& dc = canvas.DC();
    const CRect area(3, 4, 8, 10);
    dc.FillSolidRect(&area, kRed);
    EXPECT_EQ(30, canvas.Count(kRed));
    EXPECT_EQ(kRed, dc.GetPixel(3, 4));
    EXPECT_EQ(kRed, dc.GetPixel(7, 9));
    EXPECT_EQ(kWhite, dc.GetPixel(8, 10));
    EXPECT_EQ(kRed, dc.GetBkColor());
    CBrush blue(kBlue);
    dc.FillRect(CRect(0, 0, 2, 2), &blue);
    EXPECT_EQ(4, canvas.Count(kBlue));
    dc.FrameRect(CRect(10, 10, 16, 16), &blue);
    EXPECT_EQ(4 + 20, canvas.Count(kBlue));
    dc.FillRect(CRect(0, 0, 16, 16), nullptr);
    dc.FillRect(nullptr, &blue);
    dc.FillSolidRect(nullptr, kBlue);
    dc.FrameRect(nullptr, nullptr);
    EXPECT_EQ(24, canvas.Count(kBlue));
}

TEST(DC, Draw3dRectIsOneUnitWide) {
    MemoryCanvas canvas;
    canvas.DC().Draw3dRect(CRect(2, 3, 12, 13), kRed, kBlue);
    EXPECT_EQ(9 + 8, canvas.Count(kRed));
    EXPECT_EQ(10 + 9, canvas.Count(kBlue));
    EXPECT_EQ(kRed, canvas.DC().GetPixel(2, 3));
    EXPECT_EQ(kBlue, canvas.DC().GetPixel(11, 3));
    EXPECT_EQ(kBlue, canvas.DC().GetPixel(2, 12));
    EXPECT_EQ(kBlue, canvas.DC().GetPixel(11, 12));
    EXPECT_EQ(kWhite, canvas.DC().GetPixel(3, 4));
    canvas.DC().Draw3dRect(nullptr, kRed, kBlue);
}

TEST(DC, LinesAndShapes) {
    MemoryCanvas canvas;
    CDC& dc = canvas.DC();
    CPen pen(PS_SOLID, 1, kRed);
    CPen* const former = dc.SelectObject(&pen);
    dc.MoveTo(1, 1);
    EXPECT_TRUE(dc.MoveTo(CPoint(2, 5)) == CPoint(1, 1));
    dc.LineTo(10, 5);
    EXPECT_TRUE(dc.GetCurrentPosition() == CPoint(10, 5));
    EXPECT_EQ(8, canvas.Count(kRed)) << "without the end point";
    dc.SelectStockObject(NULL_BRUSH);
    dc.Rectangle(CRect(0, 8, 4, 12));
    EXPECT_EQ(8 + 12, canvas.Count(kRed));
    EXPECT_FALSE(dc.Rectangle(nullptr));
    EXPECT_FALSE(dc.Ellipse(nullptr));
    EXPECT_FALSE(dc.RoundRect(nullptr, CPoint(2, 2)));
    EXPECT_EQ(kWhite, dc.SetPixel(15, 15, kBlue) == CLR_INVALID ? kBlue : kWhite);
    EXPECT_EQ(kBlue, dc.GetPixel(CPoint(15, 15)));
    dc.SelectObject(former);
    dc.SelectStockObject(WHITE_BRUSH);
}

TEST(DC, AttributesReturnTheFormerValue) {
    MemoryCanvas canvas;
    CDC& dc = canvas.DC();
    dc.SetTextColor(kRed);
    EXPECT_EQ(kRed, dc.SetTextColor(kBlue));
    EXPECT_EQ(kBlue, dc.GetTextColor());
    EXPECT_EQ(OPAQUE, dc.SetBkMode(TRANSPARENT));
    EXPECT_EQ(TRANSPARENT, dc.GetBkMode());
    EXPECT_EQ(static_cast<UINT>(TA_LEFT), dc.SetTextAlign(TA_RIGHT));
    EXPECT_EQ(R2_COPYPEN, dc.SetROP2(R2_NOT));
    EXPECT_EQ(R2_NOT, dc.GetROP2());
    const int saved = dc.SaveDC();
    EXPECT_TRUE(dc.SetViewportOrg(3, 4) == CPoint(0, 0));
    EXPECT_TRUE(dc.OffsetViewportOrg(1, 1) == CPoint(3, 4));
    EXPECT_TRUE(dc.GetViewportOrg() == CPoint(4, 5));
    EXPECT_TRUE(dc.SetWindowOrg(1, 1) == CPoint(0, 0));
    EXPECT_TRUE(dc.GetWindowOrg() == CPoint(1, 1));
    CPoint point(1, 1);
    dc.LPtoDP(&point);
    EXPECT_TRUE(point == CPoint(4, 5));
    CRect rect(4, 5, 6, 7);
    dc.DPtoLP(&rect);
    EXPECT_TRUE(rect == CRect(1, 1, 3, 3));
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_TRUE(dc.GetViewportOrg() == CPoint(0, 0));
    EXPECT_EQ(MM_TEXT, dc.SetMapMode(MM_ANISOTROPIC));
    EXPECT_TRUE(dc.SetWindowExt(10, 10) == CSize(1, 1));
    EXPECT_TRUE(dc.SetViewportExt(CSize(20, 20)) == CSize(1, 1));
    EXPECT_TRUE(dc.GetWindowExt() == CSize(10, 10));
    EXPECT_TRUE(dc.GetViewportExt() == CSize(20, 20));
}

TEST(DC, CopiesPixels) {
    MemoryCanvas source, target;
    source.DC().FillSolidRect(0, 0, 8, 8, kRed);
    EXPECT_TRUE(target.DC().BitBlt(4, 4, 4, 4, &source.DC(), 0, 0, SRCCOPY));
    EXPECT_EQ(16, target.Count(kRed));
    EXPECT_TRUE(target.DC().StretchBlt(0, 0, 2, 2, &source.DC(), 0, 0, 4, 4, SRCCOPY));
    EXPECT_EQ(20, target.Count(kRed));
    source.DC().FillSolidRect(0, 0, 4, 8, kBlue);
    EXPECT_TRUE(target.DC().TransparentBlt(8, 8, 8, 8, &source.DC(), 0, 0, 8, 8, kRed));
    EXPECT_EQ(32, target.Count(kBlue));
    EXPECT_EQ(20, target.Count(kRed));
    const BLENDFUNCTION half = {AC_SRC_OVER, 0, 128, 0};
    target.DC().FillSolidRect(0, 0, 16, 16, RGB(0, 0, 0));
    EXPECT_TRUE(target.DC().AlphaBlend(0, 0, 4, 4, &source.DC(), 0, 0, 4, 4, half));
    EXPECT_NEAR(100, GetBValue(target.DC().GetPixel(1, 1)), 2);
    EXPECT_TRUE(target.DC().BitBlt(0, 0, 16, 16, nullptr, 0, 0, WHITENESS));
    EXPECT_EQ(256, target.Count(kWhite));
    EXPECT_FALSE(target.DC().BitBlt(0, 0, 16, 16, nullptr, 0, 0, SRCCOPY));
}

TEST(DC, TextsAreMeasuredAndDrawn) {
    MemoryCanvas canvas;
    CDC& dc = canvas.DC();
    const CString text = L"M";
    const CSize extent = dc.GetTextExtent(text);
    EXPECT_GT(extent.cx, 0);
    EXPECT_TRUE(dc.GetTextExtent(L"", 0).cx == 0);
    EXPECT_TRUE(dc.GetTextExtent(nullptr, 3) == CSize(0, 0));
    EXPECT_TRUE(dc.GetTextExtent(text, -1) == CSize(0, 0));
    dc.SetTextColor(kRed);
    dc.TextOut(0, 0, text);
    EXPECT_GT(canvas.Count(kRed), 0);
    CRect area(0, 0, 16, 16);
    EXPECT_GT(dc.DrawText(text, &area, DT_CALCRECT), 0);
    EXPECT_EQ(extent.cx, area.Width());
    CString constant = L"a long text that does not fit";
    CRect narrow(0, 0, 10, 16);
    dc.DrawText(constant, &narrow, DT_END_ELLIPSIS | DT_MODIFYSTRING);
    EXPECT_TRUE(constant == L"a long text that does not fit");
    CString face;
    EXPECT_EQ(face.GetLength(), dc.GetTextFace(face) == 0 ? -1 : face.GetLength());
    EXPECT_FALSE(face.IsEmpty());
    TEXTMETRIC metrics = {};
    EXPECT_TRUE(dc.GetTextMetrics(&metrics));
}

TEST(DC, WithoutAHandleEverythingFailsQuietly) {
    CDC dc;
    CPen pen(PS_SOLID, 1, kRed);
    EXPECT_EQ(nullptr, dc.SelectObject(&pen));
    EXPECT_EQ(nullptr, dc.SelectStockObject(WHITE_BRUSH));
    EXPECT_EQ(nullptr, dc.GetCurrentPen());
    dc.FillSolidRect(0, 0, 3, 3, kRed);
    dc.FillRect(CRect(0, 0, 3, 3), nullptr);
    EXPECT_EQ(0, dc.SaveDC());
    EXPECT_FALSE(dc.LineTo(3, 3));
    EXPECT_TRUE(dc.GetTextExtent(L"x", 1) == CSize(0, 0));
    EXPECT_EQ(nullptr, dc.GetWindow());
    EXPECT_FALSE(dc.DeleteDC());
    EXPECT_EQ(nullptr, dc.Detach());
    CString face = L"former";
    EXPECT_EQ(0, dc.GetTextFace(face));
    EXPECT_TRUE(face.IsEmpty());
}

TEST(DC, OwnsItsHandleAndFindsItsObject) {
    HDC handle = nullptr;
    {
        CDC dc;
        EXPECT_TRUE(dc.CreateCompatibleDC(nullptr));
        EXPECT_FALSE(dc.CreateCompatibleDC(nullptr)) << "it has one already";
        handle = dc;
        EXPECT_EQ(handle, dc.m_hAttribDC);
        EXPECT_EQ(&dc, CDC::FromHandle(handle));
    }
    EXPECT_EQ(0u, ::GetObjectType(handle));
    HDC const foreign = ::CreateCompatibleDC(nullptr);
    CDC* const temporary = CDC::FromHandle(foreign);
    EXPECT_EQ(foreign, temporary->m_hAttribDC);
    EXPECT_EQ(temporary, CDC::FromHandle(foreign));
    CDC::DeleteTempMap();
    EXPECT_NE(0u, ::GetObjectType(foreign));
    ::DeleteDC(foreign);
    EXPECT_EQ(nullptr, CDC::FromHandle(nullptr));
}

TEST(WindowDC, DrawsOnTheWindow) {
    PlainWindow window;
    CClientDC client(window.Object());
    client.FillSolidRect(0, 0, PlainWindow::kClientPx, PlainWindow::kClientPx, kRed);
    EXPECT_EQ(kRed, client.GetPixel(5, 5));
    ASSERT_NE(nullptr, client.GetWindow());
    EXPECT_EQ(window.Handle(), client.GetWindow()->m_hWnd);
    CWindowDC whole(window.Object());
    EXPECT_EQ(kRed, whole.GetPixel(5, 5));
    CClientDC screen(nullptr);
    EXPECT_NE(nullptr, screen.m_hDC);
}

TEST(WindowDC, PaintsWhatIsInvalid) {
    PlainWindow window;
    ::ValidateRect(window.Handle(), nullptr);
    const RECT dirty = {10, 20, 30, 40};
    ::InvalidateRect(window.Handle(), &dirty, FALSE);
    {
        CPaintDC dc(window.Object());
        EXPECT_EQ(dc.m_hDC, dc.m_ps.hdc);
        EXPECT_TRUE(CRect(dirty) == dc.m_ps.rcPaint);
        dc.FillSolidRect(0, 0, 100, 100, kBlue);
        EXPECT_EQ(kBlue, dc.GetPixel(10, 20));
    }
    EXPECT_FALSE(::GetUpdateRect(window.Handle(), nullptr, FALSE));
}

TEST(WindowDC, TwoAtOnceOnAWindowWithItsOwnContext) {
    PlainWindow window(CS_OWNDC);
    CClientDC first(window.Object());
    {
        CClientDC second(window.Object());
        EXPECT_EQ(first.m_hDC, second.m_hDC);
        second.FillSolidRect(0, 0, 10, 10, kRed);
    }
    EXPECT_EQ(kRed, first.GetPixel(5, 5)) << "still usable";
}

template <class Context> bool Throws(CWnd* window) {
    try {
        const Context dc(window);
    } catch (CResourceException* exception) {
        exception->Delete();
        return true;
    }
    return false;
}

TEST(WindowDC, AWindowThatIsGoneThrows) {
    HWND gone = nullptr;
    {
        PlainWindow window;
        gone = window.Handle();
    }
    CWnd* const object = CWnd::FromHandle(gone);
    EXPECT_TRUE(Throws<CClientDC>(object));
    EXPECT_TRUE(Throws<CWindowDC>(object));
    EXPECT_TRUE(Throws<CPaintDC>(object));
    EXPECT_TRUE(Throws<CPaintDC>(nullptr));
    CWnd none;
    EXPECT_TRUE(Throws<CClientDC>(&none)) << "not the screen instead";
}

TEST(WindowDC, NothingLeaks) {
    PlainWindow window;
    qvtest::expectNoLeak(100, [&window] {
        CClientDC client(window.Object());
        CWindowDC whole(window.Object());
        MemoryCanvas canvas;
        client.BitBlt(0, 0, 16, 16, &canvas.DC(), 0, 0, SRCCOPY);
        ::InvalidateRect(window.Handle(), nullptr, FALSE);
        CPaintDC paint(window.Object());
        paint.DrawEdge(CRect(0, 0, 9, 9), EDGE_SUNKEN, BF_RECT);
        CGdiObject::DeleteTempMap();
        CDC::DeleteTempMap();
    });
}

} // namespace
