// PathFinder.h: the way through a directory tree to the item of a path.
#pragma once

#include "DirTreeModel.h"

namespace _qv_commonctrl {

// Lists the folders on the way. A folder that the listing of its parent does not hold, since it is hidden or
// younger or the parent cannot be listed, is put into the tree when it is there.
class PathFinder {
  public:
    explicit PathFinder(DirTreeModel& model);

    // Null when the folder is not there or the folders on the way take too long.
    HTREEITEM Find(const std::wstring& path);

  private:
    HTREEITEM FindRoot(const std::wstring& root);
    HTREEITEM ChildOrNew(HTREEITEM parent, const std::wstring& text, const std::wstring& path);

    DirTreeModel& m_model;
    DirTreeItems& m_items;
    ULONGLONG m_deadline;
};

} // namespace _qv_commonctrl
