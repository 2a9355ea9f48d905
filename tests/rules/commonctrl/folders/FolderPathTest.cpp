// Paths of folders as text, and what a folder of the name space without entries is.
#include "folders/FolderPath.h"
#include "folders/ShellEntries.h"

#include <gtest/gtest.h>

using namespace _qv_commonctrl;

namespace {

TEST(FolderPath, BeyondTheClassicLimitGetsItsLongForm) {
    const std::wstring tail(300, L'x');
    EXPECT_EQ(L"C:\\short", LongPath(L"C:\\short"));
    EXPECT_EQ(L"\\\\server\\share", LongPath(L"\\\\server\\share"));
    EXPECT_EQ(L"\\\\?\\C:\\" + tail, LongPath(L"C:\\" + tail));
    EXPECT_EQ(L"\\\\?\\UNC\\server\\share\\" + tail, LongPath(L"\\\\server\\share\\" + tail));
    EXPECT_EQ(L"\\\\?\\C:\\" + tail, LongPath(L"\\\\?\\C:\\" + tail));
}

TEST(FolderPath, RootIsDriveOrShare) {
    EXPECT_EQ(3u, RootLength(L"C:\\folder"));
    EXPECT_EQ(14u, RootLength(L"\\\\server\\share\\folder"));
    EXPECT_EQ(14u, RootLength(L"\\\\server\\share"));
    for (const wchar_t* path : {L"", L"C:", L"folder", L"\\folder", L"\\\\", L"\\\\server", L"\\\\server\\"})
        EXPECT_EQ(0u, RootLength(path)) << testing::PrintToString(std::wstring(path));
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // the system's interface has none
// A folder of the name space that answers its enumeration with `answer` and no object.
class BareFolder final : public IShellFolder {
  public:
    explicit BareFolder(HRESULT answer) : m_answer(answer) {}

    HRESULT STDMETHODCALLTYPE EnumObjects(HWND, SHCONTF, IEnumIDList** list) override {
        *list = nullptr;
        return m_answer;
    }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE ParseDisplayName(HWND, IBindCtx*, LPWSTR, ULONG*, PIDLIST_RELATIVE*,
                                               ULONG*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE BindToObject(PCUIDLIST_RELATIVE, IBindCtx*, REFIID, void**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE BindToStorage(PCUIDLIST_RELATIVE, IBindCtx*, REFIID, void**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CompareIDs(LPARAM, PCUIDLIST_RELATIVE, PCUIDLIST_RELATIVE) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateViewObject(HWND, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetAttributesOf(UINT, PCUITEMID_CHILD_ARRAY, SFGAOF*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetUIObjectOf(HWND, UINT, PCUITEMID_CHILD_ARRAY, REFIID, UINT*,
                                            void**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetDisplayNameOf(PCUITEMID_CHILD, SHGDNF, STRRET*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetNameOf(HWND, PCUITEMID_CHILD, LPCWSTR, SHGDNF, PITEMID_CHILD*) override {
        return E_NOTIMPL;
    }

  private:
    HRESULT m_answer;
};
#pragma GCC diagnostic pop

TEST(ShellEntries, FolderWithoutEntriesIsListed) {
    std::vector<FolderEntry> entries;
    BareFolder empty(S_FALSE);
    EXPECT_TRUE(ListShellItems(&empty, nullptr, FolderContent::FoldersOnly, entries));
    EXPECT_TRUE(entries.empty());
    BareFolder closed(E_ACCESSDENIED);
    EXPECT_FALSE(ListShellItems(&closed, nullptr, FolderContent::FoldersOnly, entries));
}

} // namespace
