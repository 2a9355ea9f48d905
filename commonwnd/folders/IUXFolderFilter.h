// The filter that the system's folder tree asks about each item: folders and shortcuts to folders are shown.
//
//     auto* filter = new IUXFolderFilter; // no reference yet
//     filter->AddRef();
//     filter->m_pszPattern = L"*.lnk";
//     site->SetFilter(filter);
#pragma once

#include <windows.h>
#include <shlobj.h>
#include <shobjidl.h>

namespace _qv_commonwnd {

// COM interfaces have no virtual destructor: a further virtual function would stand in the table that callers
// know.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
class IUXFolderFilter final : public IFolderFilter {
  public:
    // Null `object`: E_FAIL.
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override; // the last one deletes the object

    // S_OK: show, S_FALSE: hide, E_FAIL: no pattern is set. What cannot be asked is shown.
    HRESULT STDMETHODCALLTYPE ShouldShow(IShellFolder* folder, PCIDLIST_ABSOLUTE folderId,
                                         PCUITEMID_CHILD itemId) override;
    // Both folders and other items are to be listed. Null `flags`: E_POINTER.
    HRESULT STDMETHODCALLTYPE GetEnumFlags(IShellFolder* folder, PCIDLIST_ABSOLUTE folderId, HWND* window,
                                           DWORD* flags) override;

  private:
    ~IUXFolderFilter() = default;

    LONG m_nReferences = 0;

  public:
    const wchar_t* m_pszPattern = nullptr; // of the names that may be shortcuts; borrowed
};
#pragma GCC diagnostic pop

} // namespace _qv_commonwnd
