// The root that the host may choose, and the paths below it.
#include "ProfileRoot.h"
#include "QVProfile.h"
#include "RegistryNames.h"
#include <mutex>

namespace _qv_commonclass {

namespace {

std::mutex& rootMutex() {
    static std::mutex mutex;
    return mutex;
}

// Guarded by rootMutex.
std::wstring& rootText() {
    static std::wstring root = L"Software\\QVCommonWnd";
    return root;
}

std::wstring currentRoot() {
    const std::lock_guard lock(rootMutex());
    return rootText();
}

} // namespace

std::wstring storePath(Store store, const std::wstring& keyName) {
    return currentRoot() + (store == Store::Profile ? L"\\Profile\\" : L"\\Items\\") + keyName;
}

BOOL QV_SetProfileRoot(LPCWSTR registryPath) {
    try {
        auto root = registryRootPath(registryPath, kProfileRootMaxChars);
        if (!root)
            return FALSE;
        const std::lock_guard lock(rootMutex());
        rootText().swap(*root);
        return TRUE;
    } catch (...) {
        return FALSE;
    }
}

CString QV_GetProfileRoot() {
    try {
        return CString(currentRoot().c_str());
    } catch (...) {
        return CString();
    }
}

} // namespace _qv_commonclass
