// A directory tree at the desktop, in a host window.
#pragma once

#include "SkinFixture.h"

#include "TempFolder.h"

using namespace _qv_commonctrl;

constexpr DWORD kTreeStyle =
    WS_CHILD | WS_VISIBLE | WS_BORDER | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT;

class DirTree : public SkinFixture {
  protected:
    void SetUp() override {
        SkinFixture::SetUp();
        ASSERT_TRUE(m_tree.Create(kTreeStyle, CRect(20, 20, 380, 280), &m_host, 0));
        m_tree.SetFont(QV_GetSysFont(QVFONT_UI));
        m_tree.SetTreeCtrl(1);
        ASSERT_TRUE(m_tree.SetDesktopFolder());
        m_tree.SelectItem(m_tree.GetRootItem());
        ASSERT_TRUE(
            TestHost::PumpUntil([&] { return m_tree.GetChildItem(m_tree.GetRootItem()) != nullptr; }));
    }
    void TearDown() override {
        m_tree.DestroyWindow();
        SkinFixture::TearDown();
    }

    std::vector<std::wstring> childrenOf(HTREEITEM item) const {
        std::vector<std::wstring> names;
        for (HTREEITEM child = m_tree.GetChildItem(item); child; child = m_tree.GetNextSiblingItem(child))
            names.push_back(m_tree.GetItemText(child).GetString());
        return names;
    }

    // Goes to a folder and waits until it is open. Null when it does not open.
    HTREEITEM open(const qvtest::TempFolder& folder) {
        if (!m_tree.SetPathName(folder.path().c_str()))
            return nullptr;
        const HTREEITEM item = m_tree.GetSelectedItem();
        return TestHost::PumpUntil([&] { return expanded(item); }) ? item : nullptr;
    }

    bool expanded(HTREEITEM item) const {
        return (m_tree.GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED) && m_tree.GetChildItem(item);
    }

    TestHost m_host;
    CQVComboDTBox m_tree;
};
