// Real folders, files and shortcuts, and the shell's names for them.
#pragma once

#include "TempFolder.h"

#include <afxwin.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace folderfilter_test {

struct ShellFree {
    void operator()(void* memory) const { ::CoTaskMemFree(memory); }
};
using ItemId = std::unique_ptr<ITEMIDLIST_ABSOLUTE, ShellFree>;

class Shell : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))); }
    void TearDown() override { ::CoUninitialize(); }

    // Writes a shortcut file that leads to `target`; returns its path.
    std::wstring Shortcut(const std::wstring& name, const std::wstring& target) const;

    // The shell's name for a path or a "::{...}" name.
    static ItemId IdOf(const std::wstring& path);

    // Shortcuts of every kind and other items, by name below m_folder, and whether the tree may show them.
    struct Item {
        std::wstring path;
        bool leadsToFolder;
        const char* what;
    };
    std::vector<Item> MakeItems() const;

    qvtest::TempFolder m_folder;
};

} // namespace folderfilter_test
