// Whatever the clipboard holds may be pasted into any field of any of the dialogs.
#include "ValuesFixture.h"

#include <cmath>
#include <vector>

using namespace values_test;

namespace {

constexpr int kMegabyte = 1 << 20;

std::vector<std::wstring> Anything() {
    return {L"",
            L" ",
            L"NaN",
            L"-inf",
            L"1e999",
            L"-1e-999",
            L"0x7FFFFFFF",
            L"-2147483648",
            L"4294967296",
            L"9223372036854775808",
            L"-9223372036854775809",
            L"--5",
            L"+ + 7",
            L"1.2.3,4",
            L"00:00:00;00.00 ;",
            L"99:99:99:99",
            L"-23:59:59;29",
            L"１２３",
            L"一二三 片段",
            L"\r\n\r\n12\r\n",
            L"\t\v\x1B\x7F\x1",
            L"\xD800",
            L"a\xDC00\xDC00z",
            L"\x202E"
            L"12\x200B"
            L"3",
            L"%s%n%d",
            std::wstring(kMegabyte, L'8'),
            std::wstring(kMegabyte, L':'),
            std::wstring(kMegabyte, L'片')};
}

bool IsField(HWND wnd) {
    wchar_t name[64] = L"";
    ::GetClassNameW(wnd, name, ARRAYSIZE(name));
    const std::wstring className = name;
    return (className == L"Edit" || className == L"NumberEditClass" ||
            className == L"QVTimeCodeEditExClass") &&
           ::IsWindowVisible(wnd);
}

std::vector<HWND> FieldsOf(HWND dialog) {
    std::vector<HWND> fields;
    ::EnumChildWindows(
        dialog,
        [](HWND child, LPARAM found) -> BOOL {
            if (IsField(child))
                reinterpret_cast<std::vector<HWND>*>(found)->push_back(child);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&fields));
    return fields;
}

class PasteAnything : public Values {
  protected:
    // Pastes everything into every field; then leaves by OK, and by Cancel when OK is refused.
    template <class Dialog> static INT_PTR PasteEverywhere(Dialog& dialog, size_t fieldCount) {
        return Use(dialog, [fieldCount](Driver& user, HWND wnd) {
            const std::vector<HWND> fields = FieldsOf(wnd);
            EXPECT_EQ(fieldCount, fields.size());
            for (const std::wstring& text : Anything()) {
                for (const HWND field : fields)
                    Paste(user, field, text);
            }
            for (const HWND field : fields)
                PasteWithoutText(user, field);
            // Everything is there and answers.
            for (const HWND field : fields)
                EXPECT_LE(::GetWindowTextLengthW(field), kMegabyte);
            user.send(wnd, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED));
            user.settle();
            if (::IsWindow(wnd))
                user.send(wnd, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED));
        });
    }

  private:
    static void PasteWithoutText(Driver& user, HWND field) {
        user.onUi([field] {
            ASSERT_TRUE(::OpenClipboard(field));
            ::EmptyClipboard();
            ::CloseClipboard();
            ::SendMessageW(field, WM_PASTE, 0, 0);
        });
    }
};

} // namespace

TEST_F(PasteAnything, SafeColors) {
    for (const int unit : {QVSAFECOLOR_8BIT, QVSAFECOLOR_PERCENT}) {
        CQVSafeColorDlg dialog;
        dialog.m_SafeColor.nLumUnit = unit;
        PasteEverywhere(dialog, 3);
        const tag_QVSafeColor& limits = dialog.m_SafeColor;
        for (const double value : {limits.dLumLow, limits.dLumHigh, limits.dChromaHigh})
            EXPECT_TRUE(std::isfinite(value)) << unit;
        EXPECT_GE(limits.dLumLow, 0.0);
        EXPECT_LE(limits.dLumLow, limits.dLumHigh);
        EXPECT_LE(limits.dLumHigh, 255.0);
        EXPECT_LE(limits.dChromaHigh, 115.0);
    }
}

TEST_F(PasteAnything, IntegerAndTimecode) {
    for (const int type : {QVGETINT_NUMBER, QVGETINT_TIMECODE}) {
        CQVGetIntDlg dialog;
        dialog.m_nType = type;
        dialog.m_nMin = 5;
        dialog.m_nMax = 500;
        dialog.m_nValue = 50;
        const INT_PTR end = PasteEverywhere(dialog, 1);
        if (type == QVGETINT_NUMBER && end == IDOK) {
            EXPECT_GE(dialog.m_nValue, 5);
            EXPECT_LE(dialog.m_nValue, 500);
        }
    }
}

TEST_F(PasteAnything, String) {
    CQVGetStrDlg dialog;
    dialog.m_strInvalidChar = L"\\/:*?\"<>|8";
    dialog.m_strText = L"before";
    PasteEverywhere(dialog, 1);
    EXPECT_LE(dialog.m_strText.GetLength(), dialog.m_nMaxLen);
}

TEST_F(PasteAnything, Point) {
    CQVGetPointDlg dialog;
    dialog.m_nFrame = 25;
    EXPECT_EQ(IDOK, PasteEverywhere(dialog, 2));
}

TEST_F(PasteAnything, PicturePosition) {
    CQVPicturePosDlg dialog;
    dialog.m_szRange = CSize(1920, 1080);
    dialog.m_szPicture = CSize(100, 50);
    EXPECT_EQ(IDOK, PasteEverywhere(dialog, 2));
}
