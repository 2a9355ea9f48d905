// What the file dialog keeps beside its published members while it runs.
#pragma once

#include "DockedWindow.h"
#include "fileview/ShellSelection.h"
#include "fileview/ShellView.h"
#include "fileview/ViewBar.h"

#include <QVButton.h>

namespace _qv_commonwnd {

class CFileDialogParts {
  public:
    CWnd listHolder; // the shell list's placeholder
    CShellView shellView;
    CShownFolder folder;
    CViewBar viewBar;                     // folder up, new folder, kinds of view
    _qv_commonctrl::CQVButton helpButton; // shown to hosts that ask for it only
    CDockedWindow advance;
    int toldCount = 0; // selected items when the selection was last looked at
};

} // namespace _qv_commonwnd
