// The folders of the file dialog's look-in combo box: how deep each stands and its icon.
#pragma once

#include "SmallIcons.h"
#include "support/Handles.h"

#include <afxwin.h>

#include <shlobj.h>

#include <vector>

namespace _qv_commonwnd {

// The depth of each row from where its text begins: rows that begin at the same place stand equally deep, 0 being
// the leftmost.
std::vector<int> DepthsOf(const std::vector<int>& textLefts);

// A model of a combo box whose rows the system's dialog fills and draws. What the dialog keeps with its rows is its
// own affair; the depth is seen from what it draws, the shell item is found by its name below the row above.
class CLookInFolders {
  public:
    // The combo box and the dialog's frame, which draws for it; borrowed.
    void SetWindows(HWND combo, HWND frame);
    // The rows have changed: they are looked at again when they are asked for.
    void Forget() { m_known = false; }

    // Of a row (0-based): 0 and null for one that is not there.
    int Depth(int row);
    // Small icon, owned by the model.
    HICON Icon(int row);
    // The icon of the folder in view, whether or not the rows were looked at.
    HICON IconOfFolderInView();

    CString Text(int row) const;

  private:
    struct Row {
        int depth = 0;
        OwnedItemId id;       // null: not found
        HICON icon = nullptr; // m_icons'
    };

    void Know();
    int RowCount() const;
    int TextLeft(int row) const;
    // `depth`: of the row; rows above are known.
    Row RowAt(std::size_t row, int depth, const ITEMIDLIST* inView) const;
    Row RowByItsPlace(std::size_t row, const ITEMIDLIST* inView) const;
    OwnedItemId FindItem(std::size_t row, int depth, const ITEMIDLIST* inView) const;
    const Row* ParentOf(std::size_t row, int depth) const;

    HWND m_combo = nullptr;
    HWND m_frame = nullptr;
    bool m_known = false;
    std::vector<Row> m_rows;
    OwnedItemId m_inView; // of m_inViewIcon
    HICON m_inViewIcon = nullptr;
    CSmallIcons m_icons;
};

} // namespace _qv_commonwnd
