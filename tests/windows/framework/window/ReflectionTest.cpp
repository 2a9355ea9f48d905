// Messages that a parent sends back to the control they are about.
#include "TestWnd.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr UINT kId = 7;

// A button that takes its own messages.
class SelfButton : public CButton {
  public:
    std::string m_log;
    BOOL m_bTake = TRUE;
    HBRUSH m_brush = nullptr;

    void DrawItem(LPDRAWITEMSTRUCT) override { m_log += "draw;"; }

  protected:
    afx_msg void OnClicked() { m_log += "clicked;"; }
    afx_msg BOOL OnDouble() {
        m_log += "double;";
        return m_bTake;
    }
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor) {
        m_log += "colour " + std::to_string(nCtlColor) + (pDC && pDC->m_hDC ? ";" : " without dc;");
        return m_brush;
    }
    afx_msg void OnNotifyClick(NMHDR*, LRESULT* pResult) {
        m_log += "notify;";
        *pResult = 3;
    }
    afx_msg BOOL OnNotifyRight(NMHDR*, LRESULT*) {
        m_log += "right;";
        return m_bTake;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(SelfButton, CButton)
    ON_CONTROL_REFLECT(BN_CLICKED, &SelfButton::OnClicked)
    ON_CONTROL_REFLECT_EX(BN_DOUBLECLICKED, &SelfButton::OnDouble)
    ON_WM_CTLCOLOR_REFLECT()
    ON_NOTIFY_REFLECT(NM_CLICK, &SelfButton::OnNotifyClick)
    ON_NOTIFY_REFLECT_EX(NM_RCLICK, &SelfButton::OnNotifyRight)
END_MESSAGE_MAP()

class ParentWnd : public TestWnd {
  public:
    std::string m_log;

  protected:
    afx_msg void OnClicked() { m_log += "clicked;"; }
    afx_msg void OnDouble() { m_log += "double;"; }
    afx_msg void OnNotifyClick(NMHDR*, LRESULT*) { m_log += "notify;"; }
    afx_msg void OnNotifyRight(NMHDR*, LRESULT*) { m_log += "right;"; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ParentWnd, TestWnd)
    ON_BN_CLICKED(kId, &ParentWnd::OnClicked)
    ON_BN_DOUBLECLICKED(kId, &ParentWnd::OnDouble)
    ON_NOTIFY(NM_CLICK, kId, &ParentWnd::OnNotifyClick)
    ON_NOTIFY(NM_RCLICK, kId, &ParentWnd::OnNotifyRight)
END_MESSAGE_MAP()

class Reflection : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(m_parent.CreateTop());
        ASSERT_TRUE(m_button.Create(L"", BS_PUSHBUTTON, CRect(0, 0, 20, 20), &m_parent, kId));
        m_button.m_log.clear();
    }
    void Command(WORD code) {
        m_parent.SendMessage(WM_COMMAND, MAKEWPARAM(kId, code), reinterpret_cast<LPARAM>(m_button.m_hWnd));
    }
    LRESULT Notify(UINT code) {
        NMHDR header = {m_button.m_hWnd, kId, code};
        return m_parent.SendMessage(WM_NOTIFY, kId, reinterpret_cast<LPARAM>(&header));
    }
    ParentWnd m_parent;
    SelfButton m_button;
};

TEST_F(Reflection, ControlTakesItsCommand) {
    Command(BN_CLICKED);
    EXPECT_EQ("clicked;", m_button.m_log);
    EXPECT_EQ("", m_parent.m_log);
}

TEST_F(Reflection, ExtendedHandlerChoosesWhetherTheParentSeesIt) {
    Command(BN_DOUBLECLICKED);
    EXPECT_EQ("", m_parent.m_log);
    m_button.m_bTake = FALSE;
    Command(BN_DOUBLECLICKED);
    EXPECT_EQ("double;", m_parent.m_log);
    EXPECT_EQ("double;double;", m_button.m_log);
}

TEST_F(Reflection, NotificationsAlike) {
    EXPECT_EQ(3, Notify(NM_CLICK));
    EXPECT_EQ("", m_parent.m_log);
    m_button.m_bTake = FALSE;
    Notify(NM_RCLICK);
    EXPECT_EQ("right;", m_parent.m_log);
    EXPECT_EQ("notify;right;", m_button.m_log);
}

TEST_F(Reflection, ControlGivesItsOwnBrush) {
    m_button.m_brush = static_cast<HBRUSH>(::GetStockObject(DKGRAY_BRUSH));
    const HDC dc = ::GetDC(m_button.m_hWnd);
    const auto ask = [&] {
        return m_parent.SendMessage(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc),
                                    reinterpret_cast<LPARAM>(m_button.m_hWnd));
    };
    EXPECT_EQ(reinterpret_cast<LRESULT>(m_button.m_brush), ask());
    EXPECT_EQ("colour 3;", m_button.m_log);
    m_button.m_brush = nullptr;
    EXPECT_NE(0, ask()) << "no brush of its own: the system's";
    ::ReleaseDC(m_button.m_hWnd, dc);
}

TEST_F(Reflection, OwnerDrawnControlDrawsItself) {
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_BUTTON;
    item.CtlID = kId;
    item.hwndItem = m_button.m_hWnd;
    m_parent.SendMessage(WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ("draw;", m_button.m_log);
}

TEST_F(Reflection, ControlWithoutObjectIsTheParents) {
    m_button.UnsubclassWindow();
    const HWND plain = ::GetDlgItem(m_parent.m_hWnd, kId);
    m_parent.SendMessage(WM_COMMAND, MAKEWPARAM(kId, BN_CLICKED), reinterpret_cast<LPARAM>(plain));
    EXPECT_EQ("clicked;", m_parent.m_log);
}

class SelfSlider : public CSliderCtrl {
  public:
    UINT m_nCode = 99;
    UINT m_nPos = 0;

  protected:
    afx_msg void HScroll(UINT nSBCode, UINT nPos) {
        m_nCode = nSBCode;
        m_nPos = nPos;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(SelfSlider, CSliderCtrl)
    ON_WM_HSCROLL_REFLECT()
END_MESSAGE_MAP()

TEST_F(Reflection, ScrollMessagesComeBack) {
    SelfSlider slider;
    ASSERT_TRUE(slider.Create(0, CRect(0, 0, 90, 20), &m_parent, 8));
    m_parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 4), reinterpret_cast<LPARAM>(slider.m_hWnd));
    EXPECT_EQ(static_cast<UINT>(SB_THUMBTRACK), slider.m_nCode);
    EXPECT_EQ(4u, slider.m_nPos);
}

class SelfList : public CListBox {
  public:
    int m_nMeasured = 0;
    int m_nDeleted = 0;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasure) override {
        ++m_nMeasured;
        lpMeasure->itemHeight = 33;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++m_nDeleted; }
    int CompareItem(LPCOMPAREITEMSTRUCT lpCompare) override {
        return lpCompare->itemData1 < lpCompare->itemData2 ? -1 : 1;
    }
};

TEST_F(Reflection, OwnerDrawnListMeasuresSortsAndDeletes) {
    SelfList list;
    ASSERT_TRUE(
        list.Create(LBS_OWNERDRAWVARIABLE | LBS_SORT | WS_VISIBLE, CRect(0, 0, 90, 90), &m_parent, 9));
    for (DWORD_PTR value : {5u, 2u, 9u})
        list.AddString(reinterpret_cast<LPCTSTR>(value));
    EXPECT_EQ(3, list.m_nMeasured);
    EXPECT_EQ(33, list.GetItemHeight(0));
    EXPECT_EQ(2u, list.GetItemData(0));
    EXPECT_EQ(9u, list.GetItemData(2));
    list.ResetContent();
    EXPECT_EQ(3, list.m_nDeleted);
}

} // namespace
