// QVCheckComboBox.h: a skinned combo box whose entries carry check marks.
#pragma once

#include "QVComboBox.h"

namespace _qv_commonctrl {

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
    CString GetCheckedTexts(int enoughChars) const;

    class CheckMarks* m_pMarks;
};

} // namespace _qv_commonctrl
