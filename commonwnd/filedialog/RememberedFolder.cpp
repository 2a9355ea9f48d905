#include "RememberedFolder.h"

#include <QVCommonClass.h>

#include <shlwapi.h>

namespace _qv_commonwnd {

namespace {

// A registry item, which is another store than the profile's section of nearly the same name.
constexpr wchar_t kFolderItem[] = L"pathset";
constexpr wchar_t kFolderValue[] = L"filepath";
constexpr wchar_t kRootFolder[] = L"C:\\";

} // namespace

void RepairRememberedFolder() {
    _qv_commonclass::CZ5Regkey item;
    CString folder;
    if (!item.OpenItem(kFolderItem, TRUE))
        return;
    if (item.GetValue(kFolderValue, folder) && !PathFileExistsW(folder))
        item.SetValue(kFolderValue, kRootFolder);
    item.Close();
}

CString RememberedFolder() {
    _qv_commonclass::CZ5Regkey item;
    CString folder;
    if (!item.OpenItem(kFolderItem, FALSE) || !item.GetValue(kFolderValue, folder) ||
        !PathIsDirectoryW(folder))
        return CString();
    return folder;
}

} // namespace _qv_commonwnd
