// QVComboBox.h: skinned combo boxes and their drop-down lists.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

#include <vector>

namespace _qv_commonctrl {

class CQVComboBox;

// The drop-down list window ("ComboLBox") of a skinned combo box: skin ground, rows, border and scroll bar. A
// combo box makes one for its own list; see CQVComboBox::SetListObject for one of a derived class.
class QVCOMMONCTRL_API CQVComboLBox : public CListBox, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVComboLBox)

  public:
    CQVComboLBox();
    ~CQVComboLBox() override;

    // The combo box whose list this is; null for a list that was subclassed without one.
    CQVComboBox* GetCombo() const { return m_pCombo; }

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // Draws row `item` (0-based) into `rect`; `itemState` holds ODS_SELECTED for the current row. The base
    // asks the combo box's DrawEntry, without one it draws the row's text.
    virtual void DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState);

  private:
    friend class CQVComboImpl;
    void Paint(CDC* dc, const CRect& client);
    BOOL SelectUnderMouse(WPARAM keys, LPARAM point);

    CQVComboBox* m_pCombo = nullptr;
};

// A COMBOBOX window of any style drawn with the skin. Its list and its edit field are skinned with it. Item
// heights stay what the window says (CB_SETITEMHEIGHT).
class QVCOMMONCTRL_API CQVComboBox : public CComboBox, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVComboBox)

  public:
    CQVComboBox();
    ~CQVComboBox() override;

    // Lets `list` wear the drop-down list in place of the object that the combo box made. It stays the
    // caller's and must live until the window is destroyed or null is set, which gives the list back to an
    // object of the combo box's own. FALSE when there is no list window or somebody else wears it.
    BOOL SetListObject(CQVComboLBox* list);

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    friend class CQVComboLBox;
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // Draws entry `item` (0-based, -1: none) into `rect`. `itemState` holds ODS_COMBOBOXEDIT for the closed
    // field, whose ground is drawn already; ODS_SELECTED, ODS_DISABLED and ODS_FOCUS as in an owner-drawn
    // item. The base draws ground and text of entries that have strings, and lets the parent draw those that
    // have none (WM_DRAWITEM).
    virtual void DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState);
    // Makes the object for the drop-down list; the combo box owns it.
    virtual CQVComboLBox* CreateListObject();
    // Whether an edit field lies over the closed field, which then looks like one. The base asks the style.
    virtual BOOL HasEditField() const;

  private:
    friend class CQVComboImpl;
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

// Sent to the parent of a check combo box when its list has closed; wParam: control id, lParam: its window
// handle.
constexpr UINT WM_QV_CHECKCOMBO_CLOSEUP = WM_USER + 2980;

// A drop-down list (CBS_DROPDOWNLIST) whose entries carry check marks. A click or the space bar toggles an
// entry and keeps the list open; Enter, Escape, F4 or a click elsewhere closes it. The space bar opens a
// closed list. The closed field shows the checked entries' texts, separated by commas. New entries are not
// checked.
class QVCOMMONCTRL_API CQVCheckComboBox : public CQVComboBox {
    DECLARE_DYNAMIC(CQVCheckComboBox)

  public:
    CQVCheckComboBox();
    ~CQVCheckComboBox() override;
    BOOL DestroyWindow() override;

    // Check state of entry `item` (0-based): 1 or 0; an index outside the list is 0 / ignored (FALSE).
    int GetCheck(int item) const;
    BOOL SetCheck(int item, BOOL check);
    // Checks or unchecks every entry, with one repaint: for long lists.
    void CheckAll(BOOL check);
    // Text of entry `item`; empty for an index outside the list.
    CString GetText(int item) const;

  protected:
    friend class CQVCheckLBox;
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) override;
    CQVComboLBox* CreateListObject() override;

  private:
    void Toggle(int item);
    void RepaintMarks();
    void OnListClosed();
    void FollowEntries(UINT message, WPARAM wParam, LRESULT result);
    CString GetCheckedTexts(int enoughChars) const;

    class CQVCheckComboImpl* m_pCheckImpl;
};

} // namespace _qv_commonctrl
