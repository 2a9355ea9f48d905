#include "StoredPaths.h"

#include <QVCommonClass.h>

using namespace _qv_commonclass;

namespace _qv_commonwnd {

namespace {

constexpr wchar_t kSection[] = L"PathSet";

} // namespace

CString StoredPath(LPCWSTR key) {
    return QV_GetProfileString(kSection, key, L"");
}

void StorePath(LPCWSTR key, LPCWSTR path) {
    // A null key would remove the whole section.
    if (key && *key)
        QV_WriteProfileString(kSection, key, path ? path : L"");
}

} // namespace _qv_commonwnd
