// Data between controls and members.
#include "FormDlg.h"
#include "ModalScript.h"

#include <gtest/gtest.h>

#include <functional>

using namespace qvtest;

namespace {

class ExchangeDlg : public CDialog {
  public:
    std::function<void(CDataExchange*)> m_exchange;
    ExchangeDlg() { Create(IDD_FORM); }

  protected:
    void DoDataExchange(CDataExchange* pDX) override {
        if (m_exchange)
            m_exchange(pDX);
    }
};

class DataExchange : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_NE(nullptr, m_dlg.m_hWnd); }
    template <class T> bool Write(int id, T value) {
        m_dlg.m_exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, id, value); };
        return m_dlg.UpdateData(FALSE) != FALSE;
    }
    // The value that the text gives, or the fallback when it is refused (with its message box answered).
    template <class T> T Read(LPCTSTR text, T fallback) {
        m_dlg.SetDlgItemText(IDC_NUMBER, text);
        T value = fallback;
        m_dlg.m_exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_NUMBER, value); };
        m_dlg.UpdateData(TRUE);
        return value;
    }
    CString Text(int id) const {
        CString text;
        m_dlg.GetDlgItemText(id, text);
        return text;
    }
    ExchangeDlg m_dlg;
};

TEST_F(DataExchange, TextBothWays) {
    CString value = L"hello";
    EXPECT_TRUE(Write(IDC_TEXT, value));
    EXPECT_STREQ(L"hello", Text(IDC_TEXT));
    m_dlg.SetDlgItemText(IDC_TEXT, L"  changed ");
    m_dlg.m_exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_TEXT, value); };
    EXPECT_TRUE(m_dlg.UpdateData());
    EXPECT_STREQ(L"  changed ", value);
    wchar_t buffer[4] = {};
    m_dlg.m_exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_TEXT, buffer, 4); };
    EXPECT_TRUE(m_dlg.UpdateData());
    EXPECT_STREQ(L"  c", buffer);
}

TEST_F(DataExchange, NumbersBothWays) {
    EXPECT_TRUE(Write(IDC_NUMBER, -2147483647 - 1));
    EXPECT_STREQ(L"-2147483648", Text(IDC_NUMBER));
    EXPECT_TRUE(Write(IDC_NUMBER, 4294967295u));
    EXPECT_STREQ(L"4294967295", Text(IDC_NUMBER));
    EXPECT_TRUE(Write(IDC_NUMBER, 0.5));
    EXPECT_STREQ(L"0.5", Text(IDC_NUMBER));
    EXPECT_EQ(-17, Read<int>(L"-17", 1));
    EXPECT_EQ(17, Read<int>(L" 17 ", 1));
    EXPECT_EQ(255, Read<BYTE>(L"255", 1));
    EXPECT_EQ(-32768, Read<short>(L"-32768", 1));
    EXPECT_EQ(9223372036854775807LL, Read<long long>(L"9223372036854775807", 1));
    EXPECT_DOUBLE_EQ(-1.25, Read<double>(L"-1.25", 1));
}

// A refused number tells the user, keeps the member and puts the focus on the control.
TEST_F(DataExchange, RefusedNumbers) {
    for (LPCTSTR text : {L"", L"abc", L"12x", L"2147483648", L"1.5", L"-"}) {
        m_dlg.SetDlgItemText(IDC_NUMBER, text);
        m_dlg.GetDlgItem(IDC_TEXT)->SetFocus();
        int value = 7;
        m_dlg.m_exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_NUMBER, value); };
        ModalScript script;
        script.step("answer", [](Driver& user) {
            user.waitWindow({.className = L"#32770", .title = AfxGetAppName()});
            user.enter();
        });
        EXPECT_FALSE(script.run([&] { return m_dlg.UpdateData(); })) << toUtf8(text);
        EXPECT_EQ(7, value) << toUtf8(text);
        EXPECT_EQ(m_dlg.GetDlgItem(IDC_NUMBER)->m_hWnd, ::GetFocus());
    }
}

TEST_F(DataExchange, NegativeIsNoUnsignedNumber) {
    m_dlg.SetDlgItemText(IDC_NUMBER, L"-1");
    UINT value = 7;
    m_dlg.m_exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_NUMBER, value); };
    ModalScript script;
    script.step("answer", [](Driver& user) {
        user.waitWindow({.className = L"#32770", .title = AfxGetAppName()});
        user.enter();
    });
    EXPECT_FALSE(script.run([&] { return m_dlg.UpdateData(); }));
    EXPECT_EQ(7u, value);
}

TEST_F(DataExchange, CheckAndRadio) {
    int check = 1;
    int radio = 2;
    m_dlg.m_exchange = [&](CDataExchange* pDX) {
        DDX_Check(pDX, IDC_CHECK, check);
        DDX_Radio(pDX, IDC_RADIO_FIRST, radio);
    };
    EXPECT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(1u, m_dlg.IsDlgButtonChecked(IDC_CHECK));
    EXPECT_EQ(IDC_RADIO_THIRD, m_dlg.GetCheckedRadioButton(IDC_RADIO_FIRST, IDC_RADIO_THIRD));
    m_dlg.CheckDlgButton(IDC_CHECK, 0);
    m_dlg.CheckRadioButton(IDC_RADIO_FIRST, IDC_RADIO_THIRD, IDC_RADIO_SECOND);
    EXPECT_TRUE(m_dlg.UpdateData());
    EXPECT_EQ(0, check);
    EXPECT_EQ(1, radio);
    radio = -1;
    EXPECT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(0, m_dlg.GetCheckedRadioButton(IDC_RADIO_FIRST, IDC_RADIO_THIRD));
    radio = 5;
    EXPECT_TRUE(m_dlg.UpdateData());
    EXPECT_EQ(-1, radio);
}

TEST_F(DataExchange, ListsByIndexAndText) {
    CComboBox combo;
    CListBox list;
    int comboIndex = 1;
    CString listText = L"two";
    m_dlg.m_exchange = [&](CDataExchange* pDX) {
        DDX_Control(pDX, IDC_COMBO, combo);
        DDX_Control(pDX, IDC_LIST, list);
        DDX_CBIndex(pDX, IDC_COMBO, comboIndex);
        DDX_LBString(pDX, IDC_LIST, listText);
    };
    EXPECT_TRUE(m_dlg.UpdateData(FALSE));
    for (LPCTSTR text : {L"one", L"two", L"three"}) {
        combo.AddString(text);
        list.AddString(text);
    }
    EXPECT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(1, combo.GetCurSel());
    CString text;
    combo.GetLBText(2, text);
    EXPECT_STREQ(L"three", text);
    combo.GetLBText(9, text);
    EXPECT_STREQ(L"", text);
    EXPECT_EQ(list.FindStringExact(-1, L"two"), list.GetCurSel());
    combo.SetCurSel(0);
    list.SetCurSel(-1);
    EXPECT_TRUE(m_dlg.UpdateData());
    EXPECT_EQ(0, comboIndex);
    EXPECT_STREQ(L"", listText);
}

TEST_F(DataExchange, ControlIsConnectedOnceAndMissingOnesAreAFault) {
    CEdit edit;
    m_dlg.m_exchange = [&](CDataExchange* pDX) { DDX_Control(pDX, IDC_TEXT, edit); };
    EXPECT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(&edit, m_dlg.GetDlgItem(IDC_TEXT));
    EXPECT_TRUE(m_dlg.UpdateData(FALSE));
    CEdit nobody;
    CDataExchange exchange(&m_dlg, FALSE);
    EXPECT_THROW(DDX_Control(&exchange, 4999, nobody), CInvalidArgException*);
}

TEST_F(DataExchange, LengthIsLimitedAndChecked) {
    CString value = L"abc";
    m_dlg.m_exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_TEXT, value);
        DDV_MaxChars(pDX, value, 5);
    };
    EXPECT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(5, m_dlg.SendDlgItemMessage(IDC_TEXT, EM_GETLIMITTEXT));
    m_dlg.SetDlgItemText(IDC_TEXT, L"abcdef");
    ModalScript script;
    script.step("answer", [](Driver& user) {
        user.waitWindow({.className = L"#32770", .title = AfxGetAppName()});
        user.enter();
    });
    EXPECT_FALSE(script.run([&] { return m_dlg.UpdateData(); }));
}

TEST(UpdateDataWithoutWindow, IsRefused) {
    CDialog dlg;
    EXPECT_FALSE(dlg.UpdateData());
}

} // namespace
