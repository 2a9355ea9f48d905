// CSize, CPoint, CRect.
#include "TextPrinter.h"

#include <climits>
#include <vector>

namespace {

TEST(Geometry, SizeArithmetic) {
    CSize size(3, 4);
    EXPECT_EQ(CSize(5, 1), size + CSize(2, -3));
    EXPECT_EQ(CSize(1, 7), size - CSize(2, -3));
    EXPECT_EQ(CSize(-3, -4), -size);
    size += CSize(1, 1);
    EXPECT_EQ(CSize(4, 5), size);
    size -= CSize(4, 0);
    EXPECT_EQ(CSize(0, 5), size);
    size.SetSize(7, 8);
    EXPECT_TRUE(size == CSize(7, 8) && size != CSize(8, 7));
    EXPECT_EQ(CPoint(9, 11), size + CPoint(2, 3));
    EXPECT_EQ(CPoint(5, 5), size - CPoint(2, 3));
    EXPECT_EQ(CSize(0, 0), CSize());
    EXPECT_EQ(CSize(-1, 2), CSize(static_cast<DWORD>(MAKELONG(0xFFFF, 2)))) << "words are signed";
    const POINT point = {6, 7};
    EXPECT_EQ(CSize(6, 7), CSize(point));
    const CRect rect(1, 2, 3, 4);
    EXPECT_EQ(CRect(8, 10, 10, 12), size + static_cast<const RECT*>(&rect));
    EXPECT_EQ(CRect(-6, -6, -4, -4), size - static_cast<const RECT*>(&rect));
}

TEST(Geometry, PointArithmetic) {
    CPoint point(3, 4);
    EXPECT_EQ(CPoint(5, 1), point + CSize(2, -3));
    EXPECT_EQ(CPoint(5, 1), point + CPoint(2, -3));
    EXPECT_EQ(CPoint(1, 7), point - CSize(2, -3));
    EXPECT_EQ(CSize(1, 7), point - CPoint(2, -3));
    EXPECT_EQ(CPoint(-3, -4), -point);
    point.Offset(1, 2);
    point.Offset(CPoint(1, 1));
    point.Offset(CSize(-1, 0));
    EXPECT_EQ(CPoint(4, 7), point);
    point += CSize(1, 1);
    point += CPoint(1, 1);
    point -= CSize(2, 0);
    point -= CPoint(0, 2);
    EXPECT_EQ(CPoint(4, 7), point);
    point.SetPoint(1, 1);
    EXPECT_TRUE(point == CPoint(1, 1) && point != CPoint(1, 2));
    EXPECT_EQ(CPoint(-5, -6), CPoint(static_cast<LPARAM>(MAKELPARAM(-5, -6)))) << "left of the first monitor";
    const SIZE size = {8, 9};
    EXPECT_EQ(CPoint(8, 9), CPoint(size));
    const CRect rect(0, 0, 1, 1);
    EXPECT_EQ(CRect(1, 1, 2, 2), point + static_cast<const RECT*>(&rect));
    EXPECT_EQ(CRect(-1, -1, 0, 0), point - static_cast<const RECT*>(&rect));
}

TEST(Geometry, RectConstruction) {
    EXPECT_EQ(CRect(0, 0, 0, 0), CRect());
    EXPECT_EQ(CRect(1, 2, 4, 6), CRect(CPoint(1, 2), CSize(3, 4)));
    EXPECT_EQ(CRect(1, 2, 3, 4), CRect(CPoint(1, 2), CPoint(3, 4)));
    const RECT plain = {1, 2, 3, 4};
    EXPECT_EQ(CRect(1, 2, 3, 4), CRect(plain));
    EXPECT_EQ(CRect(1, 2, 3, 4), CRect(&plain));
    EXPECT_EQ(CRect(), CRect(static_cast<LPCRECT>(nullptr)));
    CRect rect(9, 9, 9, 9);
    rect = plain;
    EXPECT_TRUE(rect.EqualRect(&plain));
    EXPECT_FALSE(rect.EqualRect(nullptr));
    rect.CopyRect(nullptr);
    EXPECT_TRUE(rect.IsRectNull());
}

TEST(Geometry, RectReading) {
    CRect rect(10, 20, 40, 80);
    EXPECT_EQ(30, rect.Width());
    EXPECT_EQ(60, rect.Height());
    EXPECT_EQ(CSize(30, 60), rect.Size());
    EXPECT_EQ(CPoint(25, 50), rect.CenterPoint());
    EXPECT_EQ(CPoint(10, 20), rect.TopLeft());
    EXPECT_EQ(CPoint(40, 80), rect.BottomRight());
    rect.TopLeft() += CSize(1, 1);
    rect.BottomRight().x = 50;
    EXPECT_EQ(CRect(11, 21, 50, 80), rect);
    EXPECT_EQ(-10, CRect(20, 0, 10, 5).Width());
}

struct EmptyCase {
    CRect rect;
    bool isEmpty;
    bool isNull;
};

TEST(Geometry, RectEmptyAndNull) {
    const EmptyCase cases[] = {{{0, 0, 0, 0}, true, true},      {{1, 1, 1, 1}, true, false},
                               {{0, 0, 1, 0}, true, false},     {{0, 0, 0, 1}, true, false},
                               {{0, 0, 1, 1}, false, false},    {{5, 5, 4, 6}, true, false},
                               {{-2, -2, -1, -1}, false, false}};
    for (const EmptyCase& c : cases) {
        EXPECT_EQ(c.isEmpty, c.rect.IsRectEmpty() != FALSE) << c.rect;
        EXPECT_EQ(c.isNull, c.rect.IsRectNull() != FALSE) << c.rect;
        EXPECT_EQ(::IsRectEmpty(&c.rect) != FALSE, c.rect.IsRectEmpty() != FALSE) << c.rect;
    }
}

TEST(Geometry, RectHoldsPoints) {
    const CRect rect(10, 20, 12, 22);
    for (int x = 9; x <= 13; ++x)
        for (int y = 19; y <= 23; ++y)
            EXPECT_EQ(::PtInRect(&rect, CPoint(x, y)) != FALSE, rect.PtInRect(CPoint(x, y)) != FALSE)
                << x << "," << y;
    EXPECT_FALSE(CRect(12, 22, 10, 20).PtInRect(CPoint(11, 21)));
}

TEST(Geometry, RectGrowsAndShrinks) {
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2);
    EXPECT_EQ(CRect(9, 8, 21, 22), rect);
    rect.DeflateRect(CSize(1, 2));
    EXPECT_EQ(CRect(10, 10, 20, 20), rect);
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(CRect(9, 8, 23, 24), rect);
    rect.DeflateRect(1, 2, 3, 4);
    const CRect margins(1, 2, 3, 4);
    rect.InflateRect(&margins);
    EXPECT_EQ(CRect(9, 8, 23, 24), rect);
    rect.DeflateRect(&margins);
    rect.InflateRect(static_cast<LPCRECT>(nullptr));
    rect.DeflateRect(20, 0);
    EXPECT_EQ(CRect(30, 10, 0, 20), rect) << "no limit at nothing";
    rect.NormalizeRect();
    EXPECT_EQ(CRect(0, 10, 30, 20), rect);
    CRect upside(0, 9, 5, 3);
    upside.NormalizeRect();
    EXPECT_EQ(CRect(0, 3, 5, 9), upside);
}

TEST(Geometry, RectMoves) {
    CRect rect(1, 2, 3, 4);
    rect.OffsetRect(1, 1);
    rect.OffsetRect(CPoint(1, 1));
    rect.OffsetRect(CSize(-1, -1));
    EXPECT_EQ(CRect(2, 3, 4, 5), rect);
    rect.MoveToX(10);
    rect.MoveToY(20);
    EXPECT_EQ(CRect(10, 20, 12, 22), rect);
    rect.MoveToXY(0, 0);
    rect.MoveToXY(CPoint(-1, -2));
    EXPECT_EQ(CRect(-1, -2, 1, 0), rect);
    rect.SetRect(CPoint(1, 1), CPoint(2, 2));
    rect.SetRect(1, 2, 3, 4);
    EXPECT_EQ(CRect(2, 4, 6, 8), rect.MulDiv(2, 1));
    rect.SetRectEmpty();
    EXPECT_EQ(CRect(), rect);
}

TEST(Geometry, RectOperators) {
    const CRect rect(10, 10, 20, 20);
    const CRect margins(1, 2, 3, 4);
    EXPECT_EQ(CRect(11, 12, 21, 22), rect + CPoint(1, 2));
    EXPECT_EQ(CRect(11, 12, 21, 22), rect + CSize(1, 2));
    EXPECT_EQ(CRect(9, 8, 19, 18), rect - CPoint(1, 2));
    EXPECT_EQ(CRect(9, 8, 19, 18), rect - CSize(1, 2));
    EXPECT_EQ(CRect(9, 8, 23, 24), rect + static_cast<LPCRECT>(margins));
    EXPECT_EQ(CRect(11, 12, 17, 16), rect - static_cast<LPCRECT>(margins));
    CRect changed = rect;
    changed += CPoint(1, 1);
    changed += CSize(1, 1);
    changed -= CPoint(1, 1);
    changed -= CSize(1, 1);
    EXPECT_EQ(rect, changed);
    changed += static_cast<LPCRECT>(margins);
    changed -= static_cast<LPCRECT>(margins);
    EXPECT_EQ(rect, changed);
    EXPECT_TRUE(rect == changed && !(rect != changed));
    changed += static_cast<LPCRECT>(changed); // itself as margins
    EXPECT_EQ(CRect(0, 0, 40, 40), changed);
}

// Every pair of small rectangles, also empty and inverted ones, against the platform's own functions.
TEST(Geometry, CombinationsAgreeWithThePlatform) {
    std::vector<CRect> all;
    for (int l = 0; l < 3; ++l)
        for (int t = 0; t < 3; ++t)
            for (int r = 0; r < 4; ++r)
                for (int b = 0; b < 4; ++b)
                    all.emplace_back(l, t, r, b);
    for (const CRect& a : all)
        for (const CRect& b : all) {
            RECT expected;
            CRect actual;
            ASSERT_EQ(::IntersectRect(&expected, &a, &b), actual.IntersectRect(&a, &b));
            ASSERT_EQ(CRect(expected), actual) << a << b;
            ASSERT_EQ(CRect(expected), a & b);
            ASSERT_EQ(::UnionRect(&expected, &a, &b), actual.UnionRect(&a, &b));
            ASSERT_EQ(CRect(expected), actual) << a << b;
            ASSERT_EQ(CRect(expected), a | b);
            ASSERT_EQ(::SubtractRect(&expected, &a, &b), actual.SubtractRect(&a, &b));
            ASSERT_EQ(CRect(expected), actual) << a << b;
            CRect self = a;
            self &= b;
            ASSERT_EQ(a & b, self);
            self = a;
            self.UnionRect(&self, &b);
            ASSERT_EQ(a | b, self) << "the result may be an operand";
        }
}

TEST(Geometry, NullOperandsAreEmpty) {
    CRect rect(1, 1, 2, 2);
    EXPECT_FALSE(rect.IntersectRect(nullptr, &rect));
    EXPECT_EQ(CRect(), rect);
    const CRect other(1, 1, 2, 2);
    EXPECT_TRUE(rect.UnionRect(&other, nullptr));
    EXPECT_EQ(other, rect);
}

} // namespace
