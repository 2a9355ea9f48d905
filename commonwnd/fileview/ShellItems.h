// Items of the shell's name space by their id lists.
#pragma once

#include "support/Handles.h"

#include <afxwin.h>

namespace _qv_commonwnd {

// The root; null when memory ran out.
OwnedItemId DesktopItem();
// The first `depth` steps of an item's list: its ancestor, or itself. Null when the list is shorter or null.
OwnedItemId AncestorAt(const ITEMIDLIST* id, int depth);
// Whether a shell item shows this name.
bool HasName(PCIDLIST_ABSOLUTE id, const CString& name);
// The item of a folder that shows this name; null when there is none, and for null. Looks at every item of the kinds
// asked for (SHCONTF_*).
OwnedItemId ChildNamed(PCIDLIST_ABSOLUTE parent, const CString& name, DWORD kinds);
// The folder that a file dialog's frame shows; null when it does not tell, and for null.
OwnedItemId FolderInView(HWND frame);
// Both null, or equal byte for byte.
bool SameItem(const ITEMIDLIST* a, const ITEMIDLIST* b);

} // namespace _qv_commonwnd
