// CZ5Regkey: one registry item, a key with named texts.
#pragma once

#include <afxwin.h>
#include "QVCommonClassApi.h"

namespace _qv_commonclass {

// One registry item (a key with named texts) below HKEY_CURRENT_USER\<root>\Items; the root is the profile's
// (QV_SetProfileRoot). Names ignore case.
//
//     CZ5Regkey item;
//     CString folder;
//     if (item.OpenItem(L"pathset", TRUE) && item.GetValue(L"filepath", folder))
//         Use(folder);
//
// Not copyable; the object owns the open item and closes it at the latest in its destructor. One object must
// not be used from two threads at once; two objects on one item may.
class QVCOMMONCLASS_API CZ5Regkey {
  public:
    CZ5Regkey();
    ~CZ5Regkey();
    CZ5Regkey(const CZ5Regkey&) = delete;
    CZ5Regkey& operator=(const CZ5Regkey&) = delete;

    // Opens the item, after closing the one that was open. create nonzero: makes it when it is missing. An
    // item that may be read but not written is opened for reading; SetValue then answers FALSE. FALSE, with
    // nothing open, when the name is null, empty, longer than 255 (a backslash or percent sign counts three:
    // item names do not nest), when the item is missing and create is zero, or the registry refuses.
    BOOL OpenItem(LPCWSTR item, BOOL create);

    // Reads the text called name. FALSE, with value unchanged, when no item is open, name is null, empty or
    // longer than 16,383, or no text of at most 1,048,576 characters is stored there. What is read of damaged
    // texts is as in QV_GetProfileString.
    BOOL GetValue(LPCWSTR name, CString& value) const;

    // Stores a text; a null value removes it (removing what is not there succeeds). FALSE, with nothing
    // changed, under the same conditions as GetValue, when value is too long, or the registry refuses.
    BOOL SetValue(LPCWSTR name, LPCWSTR value);

    // Closes the item. Without an open item nothing happens.
    void Close();

  private:
    HKEY m_hKey;
};

} // namespace _qv_commonclass
