#include "ShellFixture.h"

#include "support/Handles.h"

namespace folderfilter_test {

using _qv_commonwnd::ComHandle;

std::wstring Shell::Shortcut(const std::wstring& name, const std::wstring& target) const {
    const std::wstring path = m_folder.path(name);
    ComHandle<IShellLinkW> link;
    ComHandle<IPersistFile> file;
    EXPECT_EQ(S_OK, ::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                       link.ReceiveAny()));
    EXPECT_EQ(S_OK, link->QueryInterface(IID_IPersistFile, file.ReceiveAny()));
    link->SetPath(target.c_str());
    EXPECT_EQ(S_OK, file->Save(path.c_str(), TRUE));
    return path;
}

ItemId Shell::IdOf(const std::wstring& path) {
    PIDLIST_ABSOLUTE id = nullptr;
    EXPECT_EQ(S_OK, ::SHParseDisplayName(path.c_str(), nullptr, &id, 0, nullptr))
        << testing::PrintToString(path);
    return ItemId(id);
}

std::vector<Shell::Item> Shell::MakeItems() const {
    const std::wstring folder = m_folder.folder(L"folder");
    const std::wstring file = m_folder.file(L"file.txt", "x");
    const std::wstring gone = m_folder.folder(L"gone");
    const std::wstring toGone = Shortcut(L"to gone.lnk", gone);
    ::RemoveDirectoryW(gone.c_str());
    const std::wstring chained = Shortcut(L"to shortcut.lnk", m_folder.path(L"to folder.lnk"));
    std::string lying = "L"; // begins like a shortcut and ends in the middle of its header
    lying.append({'\0', '\0', '\0', '\1', '\x14', '\2'});
    return {{folder, true, "a folder"},
            {Shortcut(L"to folder.lnk", folder), true, "a shortcut to a folder"},
            {Shortcut(L"capitals.LNK", folder), false, "a shortcut in capitals"},
            {Shortcut(L"to file.lnk", file), false, "a shortcut to a file"},
            {toGone, false, "a shortcut to a folder that is gone"},
            {chained, false, "a shortcut to a shortcut"},
            {Shortcut(L"to itself.lnk", m_folder.path(L"to itself.lnk")), false, "a shortcut to itself"},
            {Shortcut(L"to nothing.lnk", L""), false, "a shortcut to nothing"},
            {Shortcut(L"far.lnk", L"C:\\" + std::wstring(400, L'f')), false, "a target beyond the limit"},
            {m_folder.file(L"random.lnk", std::string(5000, '\x5A')), false, "a random file"},
            {m_folder.file(L"short.lnk", lying), false, "a cut shortcut"},
            {m_folder.file(L"empty.lnk"), false, "an empty file"},
            {file, false, "a file"},
            {m_folder.file(L"no extension", "x"), false, "a file without extension"},
            {m_folder.file(L"x.lnk.txt", "x"), false, "a file with the extension in its middle"}};
}

} // namespace folderfilter_test
