// The filter of the folder tree over real and made-up shell folders.
#include "FakeShellFolder.h"
#include "ShellFixture.h"

#include "folders/IUXFolderFilter.h"
#include "support/Handles.h"

#include <initguid.h>

namespace folderfilter_test {

using _qv_commonwnd::ComHandle;
using _qv_commonwnd::IUXFolderFilter;

DEFINE_GUID(kFolderFilterId, 0x9CC22886, 0xDC8E, 0x11D2, 0xB1, 0xD0, 0x00, 0xC0, 0x4F, 0x8E, 0xEB, 0x3E);

class FolderFilter : public Shell {
  protected:
    void SetUp() override {
        Shell::SetUp();
        m_filter = ComHandle<IUXFolderFilter>(new IUXFolderFilter);
        m_filter->AddRef();
        m_filter->m_pszPattern = L"*.lnk";
    }
    void TearDown() override {
        m_filter = ComHandle<IUXFolderFilter>();
        Shell::TearDown();
    }

    HRESULT Show(const ItemId& id) const {
        ComHandle<IShellFolder> folder;
        PCUITEMID_CHILD child = nullptr;
        EXPECT_EQ(S_OK, ::SHBindToParent(id.get(), IID_IShellFolder, folder.ReceiveAny(), &child));
        return m_filter->ShouldShow(folder.Get(), nullptr, child);
    }

    ComHandle<IUXFolderFilter> m_filter;
};

TEST_F(FolderFilter, CountsItsReferences) {
    auto* filter = new IUXFolderFilter;
    EXPECT_EQ(1u, filter->AddRef());
    EXPECT_EQ(2u, filter->AddRef());
    EXPECT_EQ(1u, filter->Release());
    EXPECT_EQ(0u, filter->Release());
}

TEST_F(FolderFilter, AnswersForItsInterfaces) {
    for (const IID& id : {IID_IUnknown, IID_IFolderFilter, IID(kFolderFilterId)}) {
        void* object = nullptr;
        ASSERT_EQ(S_OK, m_filter->QueryInterface(id, &object));
        EXPECT_EQ(static_cast<IFolderFilter*>(m_filter.Get()), object);
        EXPECT_EQ(1u, m_filter->Release());
    }
    void* object = this;
    EXPECT_EQ(E_NOINTERFACE, m_filter->QueryInterface(IID_IShellFolder, &object));
    EXPECT_EQ(nullptr, object);
    EXPECT_EQ(E_FAIL, m_filter->QueryInterface(IID_IUnknown, nullptr));
}

TEST_F(FolderFilter, AsksForFoldersAndOtherItems) {
    DWORD flags = 0;
    EXPECT_EQ(S_OK, m_filter->GetEnumFlags(nullptr, nullptr, nullptr, &flags));
    EXPECT_EQ(0x60u, flags);
    EXPECT_EQ(E_POINTER, m_filter->GetEnumFlags(nullptr, nullptr, nullptr, nullptr));
}

TEST_F(FolderFilter, ShowsFoldersAndShortcutsToFoldersOnly) {
    for (const Item& item : MakeItems())
        EXPECT_EQ(item.leadsToFolder ? S_OK : S_FALSE, Show(IdOf(item.path))) << item.what;
}

TEST_F(FolderFilter, ShowsVirtualFolders) {
    constexpr const wchar_t* kNames[] = {L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}",  // the computer
                                         L"::{450D8FBA-AD25-11D0-98A8-0800361B1103}"}; // the documents
    for (const wchar_t* name : kNames)
        EXPECT_EQ(S_OK, Show(IdOf(name))) << testing::PrintToString(name);
}

// The shell asks on threads of its own, of items on drives that may have no disk.
TEST_F(FolderFilter, AsksWithoutABoxOfTheSystem) {
    FakeShellFolder folder;
    const ItemId item = IdOf(m_folder.path());
    const DWORD before = ::GetThreadErrorMode();
    ASSERT_EQ(0u, before & SEM_FAILCRITICALERRORS);
    m_filter->ShouldShow(&folder, nullptr, reinterpret_cast<PCUITEMID_CHILD>(item.get()));
    EXPECT_EQ(DWORD(SEM_FAILCRITICALERRORS), folder.errorMode & SEM_FAILCRITICALERRORS);
    EXPECT_EQ(before, ::GetThreadErrorMode());
}

TEST_F(FolderFilter, WithoutPatternFails) {
    m_filter->m_pszPattern = nullptr;
    EXPECT_EQ(E_FAIL, Show(IdOf(m_folder.path())));
}

TEST_F(FolderFilter, WithoutFolderOrItemShows) {
    const ItemId id = IdOf(m_folder.path());
    EXPECT_EQ(S_OK, m_filter->ShouldShow(nullptr, nullptr, ::ILFindLastID(id.get())));
    FakeShellFolder folder;
    EXPECT_EQ(S_OK, m_filter->ShouldShow(&folder, nullptr, nullptr));
}

TEST_F(FolderFilter, DecidesByAttributesAndName) {
    const struct {
        const wchar_t* name; // null: the folder gives none
        FakeShellFolder::Kind kind;
        HRESULT answer;
    } rows[] = {{L"whatever.txt", FakeShellFolder::Kind::Folder, S_OK},
                {L"whatever.txt", FakeShellFolder::Kind::Item, S_FALSE},
                {L"whatever.txt", FakeShellFolder::Kind::Unknown, S_FALSE},
                {nullptr, FakeShellFolder::Kind::Item, S_OK},
                {nullptr, FakeShellFolder::Kind::Unknown, S_OK},
                {L"", FakeShellFolder::Kind::Item, S_OK},
                {L"{2227A280-3AEA-1069-A2DE-08002B30309D}", FakeShellFolder::Kind::Item, S_OK},
                {L"{}", FakeShellFolder::Kind::Item, S_OK},
                {L"{", FakeShellFolder::Kind::Item, S_FALSE},
                {L"}", FakeShellFolder::Kind::Item, S_FALSE},
                {L"{a}.txt", FakeShellFolder::Kind::Item, S_FALSE},
                {L"C:\\nowhere\\x.lnk", FakeShellFolder::Kind::Item, S_FALSE},
                {L".lnk", FakeShellFolder::Kind::Item, S_FALSE}};
    const ItemId any = IdOf(m_folder.path());
    for (const auto& row : rows) {
        FakeShellFolder folder;
        folder.name = row.name;
        folder.kind = row.kind;
        EXPECT_EQ(row.answer, m_filter->ShouldShow(&folder, nullptr, ::ILFindLastID(any.get())))
            << (row.name ? testing::PrintToString(row.name) : "(none)") << ' ' << static_cast<int>(row.kind);
    }
}

} // namespace folderfilter_test
