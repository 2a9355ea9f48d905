// QVComboBox.h: a skinned combo box with its drop-down list and edit field.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

class CQVComboLBox;

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
    friend class ComboParts;
    class ComboParts* m_pParts;
};

} // namespace _qv_commonctrl
