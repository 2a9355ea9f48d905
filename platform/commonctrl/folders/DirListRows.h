// DirListRows.h: the rows of a directory list, filled while the folder is being read.
#pragma once

#include "FolderListing.h"
#include "QVDirListCtrl.h"

namespace _qv_commonctrl {

class DirListRows {
  public:
    // What the worker thread posts to the list's window: wParam is the number of the listing.
    static UINT ListedMessage();
    // Posted by the list to itself: opens the folder that was activated, after all who hear of that have read the row.
    static UINT OpenMessage();

    explicit DirListRows(CQVDirListCtrl& list) : m_list(list) {}

    // Reads a folder until there is something to show. FALSE when it cannot be read or does not answer in time; the
    // rows are what they were then.
    bool Read(FolderRequest request);
    // Shows what has been read, in place of the rows that are there.
    void Show();
    void OnListed(UINT id);
    void OnWindowGone() { m_listing.reset(); }

    std::wstring toOpen; // the activated folder

  private:
    void InsertTaken();
    void Insert(int index, const FolderEntry& entry);

    CQVDirListCtrl& m_list;
    std::unique_ptr<FolderListing> m_listing; // null when the folder has been read to its end
    UINT m_id = 0;
    std::vector<std::string> m_sortKeys; // of the rows
};

} // namespace _qv_commonctrl
