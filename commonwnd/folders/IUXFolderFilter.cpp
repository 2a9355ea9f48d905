#include "IUXFolderFilter.h"

#include "ShellShortcut.h"
#include "support/Handles.h"
#include "support/QuietErrors.h"

#include <shlwapi.h>

namespace _qv_commonwnd {

namespace {

// The name by which the shell finds an item again; empty when it has none.
CString ParsingName(IShellFolder* folder, PCUITEMID_CHILD itemId) {
    STRRET record = {};
    wchar_t* text = nullptr;
    if (FAILED(folder->GetDisplayNameOf(itemId, SHGDN_FORPARSING, &record)) ||
        FAILED(::StrRetToStrW(&record, itemId, &text)))
        return CString();
    const TaskText owned(text);
    return CString(text);
}

bool IsVirtualName(const CString& name) {
    return name[0] == L'{' && name[name.GetLength() - 1] == L'}';
}

bool IsFolder(IShellFolder* folder, PCUITEMID_CHILD itemId) {
    SFGAOF attributes = SFGAO_FOLDER;
    return SUCCEEDED(folder->GetAttributesOf(1, &itemId, &attributes)) && (attributes & SFGAO_FOLDER);
}

} // namespace

HRESULT STDMETHODCALLTYPE IUXFolderFilter::QueryInterface(REFIID id, void** object) {
    if (!object)
        return E_FAIL;
    if (!IsEqualIID(id, IID_IUnknown) && !IsEqualIID(id, IID_IFolderFilter)) {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    *object = static_cast<IFolderFilter*>(this);
    AddRef();
    return S_OK;
}

ULONG STDMETHODCALLTYPE IUXFolderFilter::AddRef() {
    return static_cast<ULONG>(::InterlockedIncrement(&m_nReferences));
}

ULONG STDMETHODCALLTYPE IUXFolderFilter::Release() {
    const LONG left = ::InterlockedDecrement(&m_nReferences);
    if (left == 0)
        delete this;
    return static_cast<ULONG>(left);
}

HRESULT STDMETHODCALLTYPE IUXFolderFilter::ShouldShow(IShellFolder* folder, PCIDLIST_ABSOLUTE,
                                                      PCUITEMID_CHILD itemId) {
    if (!m_pszPattern)
        return E_FAIL;
    if (!folder || !itemId)
        return S_OK;
    const QuietErrors quiet;
    try {
        if (IsFolder(folder, itemId))
            return S_OK;
        const CString name = ParsingName(folder, itemId);
        if (name.IsEmpty() || IsVirtualName(name))
            return S_OK;
        const bool leadsToFolder =
            ::PathMatchSpecW(name, m_pszPattern) && IsFoundFolder(ResolveShortcut(name));
        return leadsToFolder ? S_OK : S_FALSE;
    } catch (const std::exception&) { // memory ran out
        return S_OK;
    }
}

HRESULT STDMETHODCALLTYPE IUXFolderFilter::GetEnumFlags(IShellFolder*, PCIDLIST_ABSOLUTE, HWND*,
                                                        DWORD* flags) {
    if (!flags)
        return E_POINTER;
    *flags = SHCONTF_FOLDERS | SHCONTF_NONFOLDERS;
    return S_OK;
}

} // namespace _qv_commonwnd
