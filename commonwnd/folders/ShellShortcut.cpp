#include "ShellShortcut.h"

#include "support/FileNameRules.h"
#include "support/Handles.h"
#include "support/QuietErrors.h"
#include "support/TextCase.h"
#include "support/TextView.h"

#include <shlobj.h>

namespace _qv_commonwnd {

namespace {

constexpr wchar_t kShortcutExtension[] = L".lnk";

std::wstring_view ExtensionOf(const CString& path) {
    return SplitPath(ViewOf(path)).extension;
}

} // namespace

CString ResolveShortcut(const CString& path) {
    if (ExtensionOf(path) != kShortcutExtension)
        return CString();
    const QuietErrors quiet;
    ComHandle<IShellLinkW> link;
    ComHandle<IPersistFile> file;
    if (FAILED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                  link.ReceiveAny())) ||
        FAILED(link->QueryInterface(IID_IPersistFile, file.ReceiveAny())))
        return CString();
    wchar_t target[MAX_PATH] = L"";
    if (FAILED(file->Load(path, STGM_READ)) ||
        FAILED(link->GetPath(target, MAX_PATH, nullptr, SLGP_UNCPRIORITY)))
        return CString();
    target[MAX_PATH - 1] = L'\0';
    return target;
}

CString ShortcutTargetOrSelf(const CString& path) {
    return LowerText(ExtensionOf(path)) == kShortcutExtension ? ResolveShortcut(path) : path;
}

bool IsFoundFolder(const CString& path) {
    if (path.FindOneOf(L"*?") >= 0) // no name, but a search would find something
        return false;
    const QuietErrors quiet;
    WIN32_FIND_DATAW data = {};
    const HANDLE search = ::FindFirstFileW(path, &data);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    ::FindClose(search);
    return (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

} // namespace _qv_commonwnd
