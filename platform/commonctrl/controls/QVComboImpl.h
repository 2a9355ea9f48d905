// QVComboImpl.h: parts and look of a skinned combo box.
#pragma once

#include "QVComboBox.h"
#include "QVCtrlSupport.h"
#include "QVEdit.h"

#include <memory>

namespace _qv_commonctrl {

class CQVComboImpl {
  public:
    explicit CQVComboImpl(CQVComboBox& combo) : m_combo(combo) {}
    ~CQVComboImpl();
    CQVComboImpl(const CQVComboImpl&) = delete;
    CQVComboImpl& operator=(const CQVComboImpl&) = delete;

    // Wears list and edit field; does nothing while they do not exist, or when somebody else wears them.
    void AttachParts();
    BOOL SetListObject(CQVComboLBox* list);
    // The object of the list dies or is taken away.
    void ForgetList() { m_list = nullptr; }

    void Paint(CDC* dc, const CRect& client);
    void Repaint() const;
    // The system stops only the field's drawing: a list that is being filled works out its look at every entry.
    void SetListRedraw(bool redraw) const;

    // One entry as the skin draws it: ground (list rows only) and text.
    void DrawTextEntry(CDC* dc, const CString& text, const CRect& rect, UINT itemState) const;
    void DrawRowGround(CDC* dc, const CRect& rect, UINT itemState) const;
    COLORREF EntryTextColor(UINT itemState) const;
    void DrawByParent(CDC* dc, int item, const CRect& rect, UINT itemState) const;
    bool HasStrings() const;
    bool IsEditable() const { return Kind() != CBS_DROPDOWNLIST; }
    CString EntryText(int item) const;

    HotTracker hot;

  private:
    HWND Wnd() const { return m_combo.m_hWnd; }
    DWORD Kind() const { return WindowStyle(Wnd()) & (CBS_SIMPLE | CBS_DROPDOWN); }
    int Px(int px96) const { return QV_ScalePx(Wnd(), px96); }
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
