// What the tests of the folder chooser share: real folders, the running dialog found and worked by hand.
#pragma once

#include "QVCommonWnd.h"

#include "ModalScript.h"
#include "SkinnedTest.h"
#include "TempFolder.h"

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

class PathDialog : public qvtest::SkinnedTest {
  protected:
    // The chooser's window, shown and painted.
    static HWND Frame(Driver& user);
    static HWND Tree(HWND frame);

    // Text of the selected item of the tree; empty for none.
    static std::wstring SelectedText(Driver& user, HWND tree);
    // Where its text stands, client pixels of the tree.
    static CRect SelectedRect(Driver& user, HWND tree);
    static bool SelectedIsExpanded(Driver& user, HWND tree);
    // Waits until an item of this text is selected.
    static void WaitSelected(Driver& user, HWND tree, const std::wstring& text);

    // Runs the chooser while the user acts on it.
    INT_PTR Run(CQVPathDialog& dialog, const std::function<void(Driver&, HWND)>& act) const;

    // The middle of the painted close button, client pixels.
    static POINT CloseCentre(HWND frame);

    TempFolder m_folder;
};

// Cancels the next chooser of this thread as soon as it is active.
class SelfCancel {
  public:
    SelfCancel();
    ~SelfCancel();
    SelfCancel(const SelfCancel&) = delete;
    SelfCancel& operator=(const SelfCancel&) = delete;

  private:
    HHOOK m_hook;
};

} // namespace pathdialog_test
