// A shell folder that says of every item what the test wants.
#pragma once

#include <windows.h>
#include <shlobj.h>
#include <shlwapi.h>

namespace folderfilter_test {

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // COM interfaces have no virtual destructor
class FakeShellFolder final : public IShellFolder {
  public:
    enum class Kind { Folder, Item, Unknown }; // Unknown: the attributes cannot be asked

    const wchar_t* name = nullptr; // null: the name cannot be asked
    Kind kind = Kind::Item;
    DWORD errorMode = 0; // of the thread that asked last

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE GetAttributesOf(UINT, PCUITEMID_CHILD_ARRAY, SFGAOF* attributes) override {
        errorMode = ::GetThreadErrorMode();
        if (kind == Kind::Unknown)
            return E_FAIL;
        *attributes &= kind == Kind::Folder ? SFGAO_FOLDER : 0u;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetDisplayNameOf(PCUITEMID_CHILD, SHGDNF, STRRET* record) override {
        if (!name)
            return E_FAIL;
        record->uType = STRRET_WSTR;
        return ::SHStrDupW(name, &record->pOleStr);
    }

    HRESULT STDMETHODCALLTYPE ParseDisplayName(HWND, IBindCtx*, LPWSTR, ULONG*, PIDLIST_RELATIVE*,
                                               ULONG*) override {
        return E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE EnumObjects(HWND, SHCONTF, IEnumIDList**) override { return E_FAIL; }
    HRESULT STDMETHODCALLTYPE BindToObject(PCUIDLIST_RELATIVE, IBindCtx*, REFIID, void**) override {
        return E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE BindToStorage(PCUIDLIST_RELATIVE, IBindCtx*, REFIID, void**) override {
        return E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE CompareIDs(LPARAM, PCUIDLIST_RELATIVE, PCUIDLIST_RELATIVE) override {
        return E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE CreateViewObject(HWND, REFIID, void**) override { return E_FAIL; }
    HRESULT STDMETHODCALLTYPE GetUIObjectOf(HWND, UINT, PCUITEMID_CHILD_ARRAY, REFIID, UINT*,
                                            void**) override {
        return E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE SetNameOf(HWND, PCUITEMID_CHILD, LPCWSTR, SHGDNF, PITEMID_CHILD*) override {
        return E_FAIL;
    }
};
#pragma GCC diagnostic pop

} // namespace folderfilter_test
