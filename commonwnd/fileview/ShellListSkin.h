// The skin over the shell's list in the file dialog.
#pragma once

#include "ShellView.h"

#include <QVListControls.h>

#include <functional>

namespace _qv_commonwnd {

class CQVListView;

// The shell makes a new view with a new list for every folder. List, header and view are taken over and given back
// together, here.
class CShellListSkin {
  public:
    // The objects that wear the list and its header; borrowed.
    CShellListSkin(CQVListView& list, _qv_commonctrl::CQVHeaderCtrl& header);
    CShellListSkin(const CShellListSkin&) = delete;
    CShellListSkin& operator=(const CShellListSkin&) = delete;

    // Takes a view that is not shown yet and its list over; another list that was worn is given back before. Nothing
    // happens on systems whose list is not to be skinned, without a list, and when it is worn already.
    void TakeOver(HWND view);
    // The system has told of the folder in a view; null: none came, and what was worn is given back. Takes the view over
    // unless it is worn, and gives its list the look that the shell may have taken from it since. False, and nothing
    // happens, when this was told of the same list before, and on systems whose list is not to be skinned.
    bool OnFolderShown(HWND view);
    // Gives all back. Does nothing when nothing is worn.
    void GiveBack();

    // The list that is worn; null for none.
    HWND List() const;

    // How many items of a list are selected, 0 for null. The number counts as told.
    int TellSelected(HWND list);
    // Called after items were selected or unselected, when their number is not the one that was told last: not every
    // system tells when an item is unselected.
    void SetSelectionAction(std::function<void()> action) { m_selectionAction = std::move(action); }

  private:
    void Wear(HWND view, HWND list);
    void ApplyLook();
    void OnSelectionSettled();

    CQVListView& m_list;
    _qv_commonctrl::CQVHeaderCtrl& m_header;
    CShellView m_view;
    std::function<void()> m_selectionAction;
    int m_told = 0;             // selected items
    bool m_folderShown = false; // the system has told of the folder in the view
};

// Whether the shell's list is skinned on this major version of the system.
bool SkinsShellList(DWORD majorVersion);

} // namespace _qv_commonwnd
