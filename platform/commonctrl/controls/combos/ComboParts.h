// ComboParts.h: what a skinned combo box consists of: its list, its edit field and the picture of the closed
// field.
#pragma once

#include "controls/ControlSupport.h"
#include "controls/HotTracker.h"
#include "QVComboBox.h"
#include "QVComboLBox.h"
#include "QVEdit.h"

#include <memory>

namespace _qv_commonctrl {

// The windows of a combo box; all null when there is none.
COMBOBOXINFO ComboInfoOf(HWND combo);

// Text of an entry, empty for an index outside the list.
CString ComboEntryText(const CComboBox& combo, int item);

// The row of a list under a point of its client area; -1 beside the rows.
int ListItemAt(const CListBox& list, CPoint point);

class ComboParts {
  public:
    explicit ComboParts(CQVComboBox& combo) : m_combo(combo) {}
    ~ComboParts();
    ComboParts(const ComboParts&) = delete;
    ComboParts& operator=(const ComboParts&) = delete;

    // Wears list and edit field; does nothing while they do not exist, or when somebody else wears them.
    void AttachParts();
    BOOL SetListObject(CQVComboLBox* list);
    // The object of the list dies or is taken away.
    void ForgetList() { m_list = nullptr; }

    void Paint(CDC* dc, const CRect& client);
    void Repaint() const;
    // The system stops only the field's drawing: a list that is being filled works out its look at every
    // entry.
    void SetListRedraw(bool redraw) const;

    // One entry as the skin draws it, and as the parent does when the entries have no strings.
    void DrawTextEntry(CDC* dc, int item, const CRect& rect, UINT itemState) const;
    void DrawByParent(CDC* dc, int item, const CRect& rect, UINT itemState) const;
    bool HasStrings() const;
    bool IsEditable() const { return Kind() != CBS_DROPDOWNLIST; }

    HotTracker hot;

  private:
    HWND Wnd() const { return m_combo.m_hWnd; }
    DWORD Kind() const { return WindowStyle(Wnd()) & (CBS_SIMPLE | CBS_DROPDOWN); }
    int Px(int px96) const { return QV_ScalePx(Wnd(), px96); }
    void TakeOff();
    bool HasFocus() const;
    bool IsDropped() const { return ::SendMessageW(Wnd(), CB_GETDROPPEDSTATE, 0, 0) != 0; }
    ControlState State() const;
    BOOL WearList(CQVComboLBox* list);
    void PaintArrow(CDC* dc, const CRect& button, ControlState state) const;

    CQVComboBox& m_combo;
    CQVComboLBox* m_list = nullptr;
    std::unique_ptr<CQVComboLBox> m_ownList;
    std::unique_ptr<CQVEdit> m_edit;
};

} // namespace _qv_commonctrl
