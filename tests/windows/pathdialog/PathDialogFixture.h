// What the tests of the folder chooser share: real folders, the running dialog found and worked by hand.
#pragma once

#include "QVCommonWnd.h"

#include "ModalScript.h"
#include "TempFolder.h"

#include <QVDict.h>
#include <QVSkin.h>

#include <gtest/gtest.h>

#include <string>

namespace pathdialog_test {

using namespace _qv_commonwnd;
using qvtest::Driver;
using qvtest::ModalScript;
using qvtest::TempFolder;

// Controls of the system's dialog.
inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kTitle = 14146;
inline constexpr int kNewFolder = 14150;

class PathDialog : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    // The chooser's window, shown and painted.
    static HWND Frame(Driver& user);
    static HWND Tree(HWND frame);

    // Text of the selected item of the tree; empty for none.
    static std::wstring SelectedText(Driver& user, HWND tree);
    // Waits until an item of this text is selected.
    static void WaitSelected(Driver& user, HWND tree, const std::wstring& text);

    // Runs the chooser while the user acts on it.
    static INT_PTR Run(CQVPathDialog& dialog, const std::function<void(Driver&, HWND)>& act);

    TempFolder m_folder;
};

} // namespace pathdialog_test
