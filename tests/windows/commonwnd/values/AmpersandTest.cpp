// Texts of the host are shown with every & that is in them.
#include "ValuesFixture.h"

#include "ShownText.h"

using namespace values_test;

namespace {

class Ampersands : public Values {
  protected:
    static void ExpectShown(Driver& user, HWND dialog, int id, const wchar_t* text) {
        const HWND label = Control(user, dialog, id);
        user.settle();
        EXPECT_EQ(text, textOf(label));
        EXPECT_NEAR(qvtest::widthOfText(label), qvtest::widthOfInk(label), 3);
    }
};

} // namespace

TEST_F(Ampersands, InLabelAndUnitOfANumber) {
    CQVGetIntDlg dialog;
    dialog.m_strTitle = L"R&B";
    dialog.m_strLabel = L"Gain of R&B & more";
    dialog.m_strUnit = L"d&B";
    Use(dialog, [&](Driver& user, HWND wnd) {
        EXPECT_EQ(L"R&B", textOf(wnd));
        ExpectShown(user, wnd, IDC_VALUE_LABEL, L"Gain of R&B & more");
        ExpectShown(user, wnd, IDC_VALUE_UNIT, L"d&B");
        user.escape();
    });
}

TEST_F(Ampersands, InThePromptOfAText) {
    CQVGetStrDlg dialog;
    dialog.m_strPrompt = L"R&B & x";
    Use(dialog, [&](Driver& user, HWND wnd) {
        ExpectShown(user, wnd, IDC_VALUE_LABEL, L"R&B & x");
        user.escape();
    });
}
