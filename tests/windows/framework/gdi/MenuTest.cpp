// CMenu and CImageList.
#include "LeakGuard.h"
#include "MemoryCanvas.h"
#include "ModalScript.h"
#include "PlainWindow.h"
#include "afxcmn.h"

#include <gtest/gtest.h>

namespace {

constexpr UINT kOpen = 101;
constexpr UINT kSave = 102;
constexpr UINT kDeep = 103;

void Fill(CMenu& menu) {
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, kOpen, L"Open"));
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, kSave, L"Save"));
    CMenu sub;
    EXPECT_TRUE(sub.CreatePopupMenu());
    EXPECT_TRUE(sub.AppendMenu(MF_STRING, kDeep, L"Deep"));
    EXPECT_TRUE(menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(sub.Detach()), L"More"));
}

TEST(Menu, ItemsAreNamedByCommandAndPosition) {
    CMenu menu;
    Fill(menu);
    EXPECT_EQ(4, menu.GetMenuItemCount());
    EXPECT_EQ(kOpen, menu.GetMenuItemID(0));
    EXPECT_EQ(0u, menu.GetMenuItemID(1));
    EXPECT_EQ(static_cast<UINT>(-1), menu.GetMenuItemID(3));
    EXPECT_EQ(static_cast<UINT>(-1), menu.GetMenuItemID(9));
    CString text;
    EXPECT_EQ(4, menu.GetMenuString(kSave, text, MF_BYCOMMAND));
    EXPECT_TRUE(text == L"Save");
    EXPECT_EQ(4, menu.GetMenuString(3, text, MF_BYPOSITION));
    EXPECT_TRUE(text == L"More");
    EXPECT_EQ(0, menu.GetMenuString(4711, text, MF_BYCOMMAND));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(4, menu.GetMenuString(kDeep, text, MF_BYCOMMAND)) << "commands are found in submenus, too";
    WCHAR shortText[3] = {};
    EXPECT_EQ(2, menu.GetMenuString(kOpen, shortText, 3, MF_BYCOMMAND));
    EXPECT_STREQ(L"Op", shortText);
}

TEST(Menu, LongTextsAreReadWhole) {
    CMenu menu;
    menu.CreatePopupMenu();
    const CString longText(L'x', 3000);
    menu.AppendMenu(MF_STRING, kOpen, longText);
    CString text;
    menu.GetMenuString(kOpen, text, MF_BYCOMMAND);
    EXPECT_EQ(3000, text.GetLength());
}

TEST(Menu, ChangesItems) {
    CMenu menu;
    Fill(menu);
    EXPECT_TRUE(menu.ModifyMenu(kOpen, MF_BYCOMMAND | MF_STRING, kOpen, L"\u6253\u5F00"));
    CString text;
    menu.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_TRUE(text == L"\u6253\u5F00");
    EXPECT_EQ(static_cast<UINT>(MF_UNCHECKED), menu.CheckMenuItem(kOpen, MF_CHECKED) & MF_CHECKED);
    EXPECT_NE(0u, menu.GetMenuState(kOpen, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_EQ(static_cast<UINT>(-1), menu.CheckMenuItem(4711, MF_CHECKED));
    menu.EnableMenuItem(kSave, MF_GRAYED);
    EXPECT_NE(0u, menu.GetMenuState(kSave, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_EQ(static_cast<UINT>(-1), menu.EnableMenuItem(4711, MF_GRAYED));
    EXPECT_TRUE(menu.CheckMenuRadioItem(kOpen, kSave, kSave, MF_BYCOMMAND));
    EXPECT_TRUE(menu.SetDefaultItem(kOpen));
    EXPECT_EQ(kOpen, menu.GetDefaultItem(0));
    EXPECT_TRUE(menu.InsertMenu(1, MF_BYPOSITION | MF_STRING, 200, L"Between"));
    EXPECT_EQ(200u, menu.GetMenuItemID(1));
    EXPECT_TRUE(menu.RemoveMenu(200, MF_BYCOMMAND));
    EXPECT_TRUE(menu.DeleteMenu(1, MF_BYPOSITION));
    EXPECT_FALSE(menu.DeleteMenu(4711, MF_BYCOMMAND));
    EXPECT_EQ(3, menu.GetMenuItemCount());
    MENUITEMINFO info = {sizeof(info), MIIM_DATA, 0,  0,       0, nullptr,
                         nullptr,      nullptr,   42, nullptr, 0, nullptr};
    EXPECT_TRUE(menu.SetMenuItemInfo(kSave, &info));
    info.dwItemData = 0;
    EXPECT_TRUE(menu.GetMenuItemInfo(kSave, &info));
    EXPECT_EQ(42u, info.dwItemData);
}

TEST(Menu, BitmapItems) {
    CMenu menu;
    menu.CreatePopupMenu();
    CBitmap bitmap;
    bitmap.CreateBitmap(8, 8, 1, 1, nullptr);
    EXPECT_TRUE(menu.AppendMenu(0, kOpen, &bitmap));
    EXPECT_TRUE(menu.InsertMenu(0, MF_BYPOSITION, kSave, &bitmap));
    EXPECT_TRUE(menu.ModifyMenu(kSave, MF_BYCOMMAND, kSave, &bitmap));
    EXPECT_NE(0u, menu.GetMenuState(kOpen, MF_BYCOMMAND) & MF_BITMAP);
    EXPECT_TRUE(menu.SetMenuItemBitmaps(kOpen, MF_BYCOMMAND, &bitmap, nullptr));
}

TEST(Menu, SubmenusAreFound) {
    CMenu menu;
    Fill(menu);
    CMenu* const sub = menu.GetSubMenu(3);
    ASSERT_NE(nullptr, sub);
    EXPECT_EQ(kDeep, sub->GetMenuItemID(0));
    EXPECT_EQ(sub, menu.GetSubMenu(3));
    EXPECT_EQ(nullptr, menu.GetSubMenu(0));
    CMenu::DeleteTempMap();
    EXPECT_NE(nullptr, menu.GetSubMenu(3)) << "the submenu itself lives on";
    EXPECT_EQ(&menu, CMenu::FromHandle(menu));
}

TEST(Menu, WithoutAHandleEverythingFailsQuietly) {
    CMenu menu;
    PlainWindow window;
    EXPECT_EQ(-1, menu.GetMenuItemCount());
    EXPECT_FALSE(menu.AppendMenu(MF_STRING, kOpen, L"x"));
    EXPECT_EQ(nullptr, menu.GetSubMenu(0));
    EXPECT_FALSE(menu.TrackPopupMenu(TPM_LEFTALIGN, 0, 0, window.Object()));
    EXPECT_FALSE(menu.DestroyMenu());
    EXPECT_FALSE(menu.LoadMenuIndirect(nullptr));
    EXPECT_FALSE(menu.LoadMenu(4711));
    EXPECT_FALSE(menu.Attach(nullptr));
    Fill(menu);
    EXPECT_FALSE(menu.TrackPopupMenu(TPM_LEFTALIGN, 0, 0, nullptr));
    EXPECT_FALSE(menu.CreatePopupMenu()) << "it has one already";
    EXPECT_EQ(4, menu.GetMenuItemCount());
}

TEST(Menu, ChoosingReturnsTheCommand) {
    PlainWindow window;
    CMenu menu;
    Fill(menu);
    qvtest::ModalScript script;
    script.step("choose the second command", [](qvtest::Driver& user) {
        user.waitWindow({.className = L"#32768"});
        user.press(VK_DOWN);
        user.press(VK_DOWN);
        user.enter();
    });
    ::SetForegroundWindow(window.Handle());
    const BOOL chosen = script.run(
        [&] { return menu.TrackPopupMenu(TPM_RETURNCMD | TPM_NONOTIFY, 100, 100, window.Object()); });
    EXPECT_EQ(kSave, static_cast<UINT>(chosen));
}

TEST(Menu, NothingLeaks) {
    qvtest::expectNoLeak(200, [] {
        CMenu menu;
        Fill(menu);
        menu.GetSubMenu(3);
        HMENU const handle = menu.Detach();
        CMenu second;
        second.Attach(handle);
        CMenu::DeleteTempMap();
    });
}

TEST(ImageList, HoldsAndDrawsImages) {
    MemoryCanvas picture, target;
    picture.DC().FillSolidRect(0, 0, 16, 16, RGB(0, 128, 0));
    CImageList list;
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR32, 0, 4));
    EXPECT_FALSE(list.Create(16, 16, ILC_COLOR32, 0, 4));
    EXPECT_EQ(&list, CImageList::FromHandle(list));
    picture.DC().SelectStockObject(BLACK_BRUSH);
    CBitmap images;
    images.CreateCompatibleBitmap(&picture.DC(), 32, 16);
    CDC drawing;
    drawing.CreateCompatibleDC(&picture.DC());
    CBitmap* const former = drawing.SelectObject(&images);
    drawing.FillSolidRect(0, 0, 16, 16, RGB(128, 0, 0));
    drawing.FillSolidRect(16, 0, 16, 16, RGB(0, 0, 128));
    drawing.SelectObject(former);
    EXPECT_EQ(0, list.Add(&images, static_cast<CBitmap*>(nullptr)));
    EXPECT_EQ(2, list.GetImageCount());
    EXPECT_TRUE(list.Draw(&target.DC(), 1, CPoint(0, 0), ILD_NORMAL));
    EXPECT_EQ(RGB(0, 0, 128), target.DC().GetPixel(4, 4));
    int width = 0, height = 0;
    EXPECT_TRUE(list.GetIconSize(&width, &height));
    EXPECT_EQ(16, width);
    IMAGEINFO first = {};
    IMAGEINFO second = {};
    EXPECT_TRUE(list.GetImageInfo(0, &first));
    EXPECT_TRUE(list.GetImageInfo(1, &second));
    EXPECT_EQ(CSize(16, 16), CRect(second.rcImage).Size());
    RECT shared = {};
    EXPECT_FALSE(
        ::IntersectRect(&shared, &first.rcImage, &second.rcImage)); // beside or below, as the system likes
    HICON const icon = list.ExtractIcon(0);
    EXPECT_NE(nullptr, icon);
    EXPECT_EQ(2, list.Add(icon));
    ::DestroyIcon(icon);
    CImageList copy;
    EXPECT_TRUE(copy.Create(&list));
    EXPECT_EQ(3, copy.GetImageCount());
    EXPECT_TRUE(list.Remove(-1));
    EXPECT_EQ(0, list.GetImageCount());
    EXPECT_EQ(3, copy.GetImageCount());
}

TEST(ImageList, WithoutAHandleOrArgumentEverythingFailsQuietly) {
    CImageList list;
    MemoryCanvas canvas;
    EXPECT_EQ(0, list.GetImageCount());
    EXPECT_EQ(-1, list.Add(static_cast<HICON>(nullptr)));
    EXPECT_EQ(-1, list.Add(static_cast<CBitmap*>(nullptr), RGB(0, 0, 0)));
    EXPECT_FALSE(list.Draw(&canvas.DC(), 0, CPoint(), ILD_NORMAL));
    EXPECT_FALSE(list.Remove(0));
    EXPECT_FALSE(list.Create(static_cast<CImageList*>(nullptr)));
    EXPECT_FALSE(list.Create(4711u, 16, 1, RGB(0, 0, 0)));
    EXPECT_EQ(nullptr, list.ExtractIcon(0));
    EXPECT_EQ(nullptr, CImageList::FromHandle(nullptr));
    EXPECT_EQ(CLR_NONE, list.SetBkColor(RGB(1, 2, 3)));
    EXPECT_FALSE(list.DrawIndirect(nullptr));
}

TEST(ImageList, NothingLeaks) {
    qvtest::expectNoLeak(100, [] {
        CImageList list;
        list.Create(16, 16, ILC_COLOR32 | ILC_MASK, 2, 2);
        MemoryCanvas canvas;
        HIMAGELIST const handle = list.Detach();
        EXPECT_EQ(handle, CImageList::FromHandle(handle)->GetSafeHandle());
        CImageList::DeleteTempMap();
        CImageList second;
        second.Attach(handle);
    });
}

} // namespace
