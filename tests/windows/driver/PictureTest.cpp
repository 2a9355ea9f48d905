#include "Picture.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

using namespace qvtest;

namespace {

constexpr COLORREF kFill = RGB(10, 200, 30);

// A window without frame that shows one colour.
class PlainWindow {
  public:
    PlainWindow() : m_brush(CreateSolidBrush(kFill)) {
        WNDCLASSW wc = {};
        wc.lpfnWndProc = DefWindowProcW;
        wc.hInstance = GetModuleHandleW(nullptr);
        wc.hbrBackground = m_brush;
        wc.lpszClassName = L"QVPlainWindow";
        RegisterClassW(&wc);
        m_window = CreateWindowExW(WS_EX_TOPMOST, wc.lpszClassName, L"", WS_POPUP | WS_VISIBLE, 300, 200, 40,
                                   30, nullptr, nullptr, wc.hInstance, nullptr);
        UpdateWindow(m_window);
    }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;
    ~PlainWindow() {
        DestroyWindow(m_window);
        UnregisterClassW(L"QVPlainWindow", GetModuleHandleW(nullptr)); // deletes the brush
    }
    operator HWND() const { return m_window; }

  private:
    HBRUSH m_brush;
    HWND m_window;
};

TEST(Picture, ShowsWhatAWindowPainted) {
    const PlainWindow window;
    const Picture client = Picture::ofClient(window);
    EXPECT_EQ(40, client.width());
    EXPECT_EQ(30, client.height());
    EXPECT_EQ(40 * 30, client.count(kFill));
    EXPECT_EQ(client, Picture::ofWindow(window));
}

TEST(Picture, FilesKeepEveryPixel) {
    const PlainWindow window;
    HDC context = GetDC(window);
    SetPixel(context, 3, 4, RGB(1, 2, 3));
    ReleaseDC(window, context);
    const Picture shot = Picture::ofClient(window);
    EXPECT_EQ(RGB(1, 2, 3), shot.at(3, 4));
    const TempFolder folder;
    const std::wstring path = folder.path(L"new\\shot.png");
    ASSERT_TRUE(shot.save(path));
    EXPECT_EQ(shot, Picture::load(path));
    EXPECT_TRUE(Picture::load(folder.path(L"none.png")).empty());
}

TEST(Picture, CountsDifferencesAndColours) {
    const PlainWindow window;
    const Picture before = Picture::ofClient(window);
    HDC context = GetDC(window);
    SetPixel(context, 0, 0, RGB(255, 255, 255));
    SetPixel(context, 39, 29, RGB(255, 255, 255));
    ReleaseDC(window, context);
    const Picture after = Picture::ofClient(window);
    EXPECT_EQ(2, after.differences(before));
    EXPECT_EQ(-1, after.differences(Picture(1, 1)));
    EXPECT_EQ(1, before.colours({0, 0, 100, 100}));
    EXPECT_EQ(2, after.colours({0, 0, 5, 5}));
    EXPECT_EQ(1, after.part({30, 20, 90, 90}).count(RGB(255, 255, 255)));
    EXPECT_NE(before.hash(), after.hash());
    EXPECT_EQ(CLR_INVALID, after.at(40, 0));
}

} // namespace
