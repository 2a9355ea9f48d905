// PathFinder.h: the way through a directory tree to the item of a path.
#pragma once

#include "DirTreeModel.h"

namespace _qv_commonctrl {

// Lists the folders on the way. A folder that the listing of its parent does not hold, since it is hidden or younger or
// the parent cannot be listed, is put into the tree when it is there.
class PathFinder {
  public:
    PathFinder(DirTreeModel& model, const std::wstring& path);

    // Null when the folder is not there or does not answer in its time.
    HTREEITEM Find();

  private:
    HTREEITEM FindRoot();
    HTREEITEM ChildOrNew(HTREEITEM parent, const std::wstring& text, const std::wstring& path);
    bool IsThere();

    enum class Answer { NotAsked, Yes, No };

    DirTreeModel& m_model;
    DirTreeItems& m_items;
    std::wstring m_path;
    ULONGLONG m_deadline;
    Answer m_there = Answer::NotAsked;
};

} // namespace _qv_commonctrl
