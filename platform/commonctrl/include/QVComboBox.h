// QVComboBox.h: skinned combo boxes and their drop-down lists.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

#include <vector>

namespace _qv_commonctrl {

// The drop-down list window ("ComboLBox") of a skinned combo box.
class QVCOMMONCTRL_API CQVComboLBox : public CListBox, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVComboLBox)

  public:
    CQVComboLBox();
    ~CQVComboLBox() override;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

// A COMBOBOX window of any style drawn with the skin.
class QVCOMMONCTRL_API CQVComboBox : public CComboBox, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVComboBox)

  public:
    CQVComboBox();
    ~CQVComboBox() override;

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // Draws the closed field and, for owner-drawn combos, one entry. Derived classes may override DrawEntry.
    virtual void DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState);

  private:
    class CQVComboImpl* m_pImpl;
};

// A ComboBoxEx32 window: its inner combo box and edit field are skinned.
class QVCOMMONCTRL_API CQVComboBoxEx : public CComboBoxEx, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVComboBoxEx)

  public:
    CQVComboBoxEx();
    ~CQVComboBoxEx() override;

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    class CQVComboBoxExImpl* m_pImpl;
};

// Sent to the parent of a check combo box when its list closes; wParam: control id, lParam: its window
// handle.
constexpr UINT WM_QV_CHECKCOMBO_CLOSEUP = WM_USER + 2980;

// A drop-down list whose entries carry check marks. A click or the space bar toggles an entry and keeps the
// list open; the closed field shows the checked entries' texts, separated by commas.
class QVCOMMONCTRL_API CQVCheckComboBox : public CQVComboBox {
    DECLARE_DYNAMIC(CQVCheckComboBox)

  public:
    CQVCheckComboBox();
    ~CQVCheckComboBox() override;

    // Check state of entry `item` (0-based): 1 or 0; an index outside the list is 0 / ignored (FALSE).
    int GetCheck(int item) const;
    BOOL SetCheck(int item, BOOL check);
    // Text of entry `item`; empty for an index outside the list.
    CString GetText(int item) const;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) override;

  private:
    class CQVCheckComboImpl* m_pCheckImpl;
};

} // namespace _qv_commonctrl
