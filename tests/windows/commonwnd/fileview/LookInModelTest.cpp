// The look-in list's model over dialogs that draw their rows in different ways.
#include "fileview/LookInFolders.h"
#include "fileview/ShellItems.h"

#include <gtest/gtest.h>

#include <commdlg.h>
#include <shlobj.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace filedialog_test {

using namespace _qv_commonwnd;

namespace {

constexpr int kIndentPx = 10;

// Stands in for the system's dialog: draws the rows of its combo box and tells the folder in view.
class FakeDialog {
  public:
    enum class Drawing { Indented, BehindAFill, AtOnePlace };

    explicit FakeDialog(Drawing drawing) : m_drawing(drawing) {
        m_frame = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr, nullptr,
                                    nullptr);
        ::SetWindowLongPtrW(m_frame, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        ::SetWindowLongPtrW(m_frame, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
        m_combo = ::CreateWindowExW(0, L"COMBOBOX", L"",
                                    WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 0, 0,
                                    90, 90, m_frame, nullptr, nullptr, nullptr);
    }
    ~FakeDialog() { ::DestroyWindow(m_frame); }
    FakeDialog(const FakeDialog&) = delete;
    FakeDialog& operator=(const FakeDialog&) = delete;

    // The shown name of each folder on the way, beginning with the root.
    void ShowWayTo(const wchar_t* path) {
        m_inView.reset(::ILCreateFromPathW(path));
        for (int depth = 0;; ++depth) {
            const OwnedItemId item = AncestorAt(m_inView.get(), depth);
            if (!item)
                break;
            SHFILEINFOW info = {};
            ::SHGetFileInfoW(reinterpret_cast<LPCWSTR>(item.get()), 0, &info, sizeof info,
                             SHGFI_PIDL | SHGFI_DISPLAYNAME);
            ::SendMessageW(m_combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(info.szDisplayName));
        }
    }
    int Rows() const { return static_cast<int>(::SendMessageW(m_combo, CB_GETCOUNT, 0, 0)); }
    HWND Combo() const { return m_combo; }
    HWND Frame() const { return m_frame; }

  private:
    static LRESULT CALLBACK Procedure(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam) {
        const auto* self = reinterpret_cast<const FakeDialog*>(::GetWindowLongPtrW(wnd, GWLP_USERDATA));
        if (message == WM_DRAWITEM)
            return self->Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        if (message == CDM_GETFOLDERIDLIST)
            return self->TellFolder(static_cast<UINT>(wParam), reinterpret_cast<void*>(lParam));
        return ::DefWindowProcW(wnd, message, wParam, lParam);
    }
    LRESULT Draw(const DRAWITEMSTRUCT& draw) const {
        if (m_drawing == Drawing::BehindAFill)
            ::ExtTextOutW(draw.hDC, 0, 0, ETO_OPAQUE, &draw.rcItem, nullptr, 0, nullptr);
        const int left =
            m_drawing == Drawing::AtOnePlace ? kIndentPx : static_cast<int>(draw.itemID) * kIndentPx;
        ::ExtTextOutW(draw.hDC, left, 0, 0, nullptr, L"row", 3, nullptr);
        return TRUE;
    }
    LRESULT TellFolder(UINT room, void* to) const {
        const UINT bytes = ::ILGetSize(m_inView.get());
        if (to && room >= bytes)
            std::memcpy(to, m_inView.get(), bytes);
        return static_cast<LRESULT>(bytes);
    }

    Drawing m_drawing;
    HWND m_frame = nullptr;
    HWND m_combo = nullptr;
    OwnedItemId m_inView;
};

} // namespace

class LookInModel : public testing::TestWithParam<FakeDialog::Drawing> {
  protected:
    void SetUp() override { ASSERT_TRUE(SUCCEEDED(::CoInitialize(nullptr))); }
    void TearDown() override { ::CoUninitialize(); }
};

TEST_P(LookInModel, RowsOnTheWayStandEachOneDeeper) {
    FakeDialog dialog(GetParam());
    dialog.ShowWayTo(L"C:\\windows\\system32");
    ASSERT_GE(dialog.Rows(), 4);
    CLookInFolders folders;
    folders.SetWindows(dialog.Combo(), dialog.Frame());
    for (int row = 0; row < dialog.Rows(); ++row)
        EXPECT_EQ(row, folders.Depth(row)) << row;
}

INSTANTIATE_TEST_SUITE_P(Drawings, LookInModel,
                         testing::Values(FakeDialog::Drawing::Indented, FakeDialog::Drawing::BehindAFill,
                                         FakeDialog::Drawing::AtOnePlace));

} // namespace filedialog_test
