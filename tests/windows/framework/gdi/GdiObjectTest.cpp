// CGdiObject and its classes: ownership, handle maps, temporary objects.
#include "LeakGuard.h"
#include "MemoryCanvas.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

constexpr COLORREF kRed = RGB(200, 0, 0);

bool IsAlive(HGDIOBJ handle) {
    return ::GetObjectType(handle) != 0;
}

TEST(GdiObject, OwnsItsHandle) {
    HGDIOBJ handle = nullptr;
    {
        CBrush brush(kRed);
        handle = brush;
        ASSERT_TRUE(IsAlive(handle));
        EXPECT_EQ(&brush, CGdiObject::FromHandle(handle));
        EXPECT_EQ(&brush, CGdiObject::FromHandlePermanent(handle));
    }
    EXPECT_FALSE(IsAlive(handle));
    EXPECT_EQ(nullptr, CGdiObject::FromHandlePermanent(handle));
}

TEST(GdiObject, DetachGivesTheHandleBack) {
    HBRUSH handle = nullptr;
    {
        CBrush brush(kRed);
        handle = static_cast<HBRUSH>(brush.Detach());
        EXPECT_EQ(nullptr, brush.GetSafeHandle());
        EXPECT_EQ(nullptr, brush.Detach());
        EXPECT_FALSE(brush.DeleteObject());
    }
    ASSERT_TRUE(IsAlive(handle));
    CBrush second;
    EXPECT_TRUE(second.Attach(handle));
    EXPECT_TRUE(second.DeleteObject());
    EXPECT_FALSE(IsAlive(handle));
}

TEST(GdiObject, RefusesWhatItCannotOwn) {
    CBrush brush(kRed), other;
    HGDIOBJ const handle = brush;
    EXPECT_FALSE(other.Attach(nullptr));
    EXPECT_FALSE(other.Attach(handle)) << "the handle has an object on this thread";
    EXPECT_FALSE(brush.CreateSolidBrush(kRed)) << "the object has a handle";
    EXPECT_EQ(handle, brush.GetSafeHandle());
    EXPECT_FALSE(other.CreateBrushIndirect(nullptr));
    EXPECT_FALSE(other.CreatePatternBrush(nullptr));
    CFont font;
    EXPECT_FALSE(font.CreateFontIndirect(nullptr));
    CBitmap bitmap;
    EXPECT_FALSE(bitmap.CreateCompatibleBitmap(nullptr, 4, 4));
    EXPECT_FALSE(bitmap.LoadBitmap(4711));
    CRgn region;
    EXPECT_FALSE(region.CreateRectRgnIndirect(nullptr));
    EXPECT_FALSE(region.CreateFromPath(nullptr));
    EXPECT_EQ(ERROR, region.CombineRgn(nullptr, nullptr, RGN_OR));
    EXPECT_FALSE(region.EqualRgn(nullptr));
    CPen pen;
    EXPECT_FALSE(pen.CreatePen(PS_GEOMETRIC, 3, static_cast<const LOGBRUSH*>(nullptr)));
}

TEST(GdiObject, ConstructorsThatFailThrow) {
    bool thrown = false;
    try {
        const CBrush brush(static_cast<CBitmap*>(nullptr));
    } catch (CResourceException* exception) {
        exception->Delete();
        thrown = true;
    }
    EXPECT_TRUE(thrown);
}

TEST(GdiObject, TemporaryObjectsBorrow) {
    HPEN const handle = ::CreatePen(PS_SOLID, 1, kRed);
    CGdiObject* const object = CGdiObject::FromHandle(handle);
    ASSERT_NE(nullptr, object);
    EXPECT_EQ(object, CPen::FromHandle(handle)) << "one object a handle";
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(nullptr, CGdiObject::FromHandlePermanent(handle));
    CGdiObject::DeleteTempMap();
    EXPECT_TRUE(IsAlive(handle));
    CPen owner;
    EXPECT_TRUE(owner.Attach(handle)) << "a temporary object is no hindrance";
    EXPECT_EQ(&owner, CPen::FromHandle(handle));
    EXPECT_EQ(nullptr, CGdiObject::FromHandle(nullptr));
}

TEST(GdiObject, TemporaryObjectsHaveTheClassOfTheirHandle) {
    struct Row {
        HGDIOBJ handle;
        CRuntimeClass* expected;
    };
    HDC const memory = ::CreateCompatibleDC(nullptr);
    const Row rows[] = {{::GetStockObject(WHITE_PEN), RUNTIME_CLASS(CPen)},
                        {::GetStockObject(GRAY_BRUSH), RUNTIME_CLASS(CBrush)},
                        {::GetStockObject(SYSTEM_FONT), RUNTIME_CLASS(CFont)},
                        {::GetCurrentObject(memory, OBJ_BITMAP), RUNTIME_CLASS(CBitmap)},
                        {::CreateRectRgn(0, 0, 1, 1), RUNTIME_CLASS(CRgn)}};
    for (const Row& row : rows)
        EXPECT_TRUE(CGdiObject::FromHandle(row.handle)->IsKindOf(row.expected))
            << row.expected->m_lpszClassName;
    CGdiObject::DeleteTempMap();
    ::DeleteObject(rows[4].handle);
    ::DeleteDC(memory);
}

TEST(GdiObject, ATemporaryObjectThatIsDeletedOrDetachedIsForgotten) {
    HBRUSH const handle = ::CreateSolidBrush(kRed);
    CBrush* const temporary = CBrush::FromHandle(handle);
    EXPECT_EQ(handle, temporary->Detach());
    EXPECT_NE(temporary, CBrush::FromHandle(handle)) << "the old object has no handle any more";
    EXPECT_EQ(handle, CBrush::FromHandle(handle)->GetSafeHandle());
    EXPECT_TRUE(CBrush::FromHandle(handle)->DeleteObject());
    EXPECT_FALSE(IsAlive(handle));
    CGdiObject::DeleteTempMap();
}

TEST(GdiObject, ObjectsAreOfTheirThread) {
    CBrush brush(kRed);
    HBRUSH const handle = brush;
    std::thread([handle, &brush] {
        EXPECT_EQ(nullptr, CGdiObject::FromHandlePermanent(handle));
        EXPECT_NE(&brush, CBrush::FromHandle(handle));
        brush.DeleteObject(); // from another thread than the one that made it
    }).join();
    EXPECT_FALSE(IsAlive(handle));
    EXPECT_EQ(nullptr, CGdiObject::FromHandlePermanent(handle)) << "no stale entry stays";
}

TEST(GdiObject, ThreadsLeaveNoTemporaryObjectsBehind) {
    qvtest::expectNoLeak(50, [] {
        std::thread([] {
            for (int i = 0; i < 10; ++i)
                CGdiObject::FromHandle(::GetStockObject(i < 8 ? i : SYSTEM_FONT));
            CMenu menu;
            menu.CreatePopupMenu();
            CMenu::FromHandle(menu);
        }).join();
    });
}

TEST(GdiObject, NothingLeaksOverMakingAndDeleting) {
    qvtest::expectNoLeak(200, [] {
        CPen pen(PS_SOLID, 2, kRed), dashed;
        const LOGBRUSH solid = {BS_SOLID, kRed, 0};
        const DWORD dashes[] = {3, 2};
        dashed.CreatePen(PS_GEOMETRIC | PS_USERSTYLE, 2, &solid, 2, dashes);
        CBrush brush(kRed), hatch(HS_CROSS, kRed), system;
        system.CreateSysColorBrush(COLOR_WINDOW);
        CFont font;
        font.CreatePointFont(90, L"Arial");
        MemoryCanvas canvas;
        CBrush pattern(&canvas.Bitmap());
        CRgn region, round;
        region.CreateRectRgn(0, 0, 4, 4);
        round.CreateRoundRectRgn(0, 0, 9, 9, 3, 3);
        region.CombineRgn(&region, &round, RGN_XOR);
        CPen* const former = canvas.DC().SelectObject(&pen);
        canvas.DC().LineTo(5, 5);
        canvas.DC().SelectObject(former);
        CGdiObject::DeleteTempMap();
    });
}

TEST(GdiObject, Descriptions) {
    CPen pen(PS_DOT, 1, kRed);
    LOGPEN logPen = {};
    EXPECT_NE(0, pen.GetLogPen(&logPen));
    EXPECT_EQ(kRed, logPen.lopnColor);
    CPen again;
    EXPECT_TRUE(again.CreatePenIndirect(&logPen));
    CBrush brush(HS_CROSS, kRed);
    LOGBRUSH logBrush = {};
    EXPECT_NE(0, brush.GetLogBrush(&logBrush));
    EXPECT_EQ(static_cast<UINT>(BS_HATCHED), logBrush.lbStyle);
    CFont font;
    EXPECT_TRUE(font.CreateFont(-20, 0, 0, 0, FW_BOLD, TRUE, FALSE, FALSE, DEFAULT_CHARSET,
                                OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
                                L"Arial"));
    LOGFONT logFont = {};
    EXPECT_NE(0, font.GetLogFont(&logFont));
    EXPECT_EQ(-20, logFont.lfHeight);
    EXPECT_EQ(FW_BOLD, logFont.lfWeight);
    CBitmap bitmap;
    EXPECT_TRUE(bitmap.CreateBitmap(7, 5, 1, 32, nullptr));
    BITMAP shape = {};
    EXPECT_NE(0, bitmap.GetBitmap(&shape));
    EXPECT_EQ(7, shape.bmWidth);
    EXPECT_EQ(5, shape.bmHeight);
    CRgn region;
    EXPECT_TRUE(region.CreateRectRgn(1, 2, 30, 40));
    CRect box;
    EXPECT_EQ(SIMPLEREGION, region.GetRgnBox(&box));
    EXPECT_TRUE(box == CRect(1, 2, 30, 40));
    EXPECT_TRUE(region.PtInRegion(CPoint(5, 5)));
    EXPECT_FALSE(region.RectInRegion(nullptr));
    EXPECT_EQ(static_cast<UINT>(OBJ_REGION), region.GetObjectType());
    EXPECT_EQ(0u, CRgn().GetObjectType());
}

TEST(GdiObject, PointFontsFollowTheDevice) {
    constexpr int kTenPoints = 100;
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(kTenPoints, L"Arial"));
    HDC const screen = ::GetDC(nullptr);
    const int expected = -::MulDiv(10, ::GetDeviceCaps(screen, LOGPIXELSY), 72);
    ::ReleaseDC(nullptr, screen);
    LOGFONT description = {};
    font.GetLogFont(&description);
    EXPECT_EQ(expected, description.lfHeight);
    EXPECT_STREQ(L"Arial", description.lfFaceName);
    CFont unnamed;
    EXPECT_TRUE(unnamed.CreatePointFont(kTenPoints, nullptr));
}

} // namespace
