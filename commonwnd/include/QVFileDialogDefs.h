// QVFileDialogDefs.h: the figures that the file dialog, its panels and the host exchange.
#pragma once

#include "QVCommonWndApi.h"

namespace _qv_commonwnd {

// What the user chose.
enum eFileSelType : int {
    eSelFile = 1,   // files, by Open or Save
    eSelForder = 2, // a folder, by the folder import panel
};

// Option bits of an open dialog; they may be combined. A save dialog always has FDO_KEEPOK alone.
enum QVFileDialogOption : DWORD {
    FDO_KEEPOK = 0x1, // the Open button is kept
    // The folder import panel is shown: in place of Open, with FDO_KEEPOK below Cancel.
    FDO_IMPORTFOLDER = 0x2,
};

// What CQVFileDialog::EnableLayerInfo takes.
enum QVLayerInfo : int {
    LAYERINFO_DISABLE = 0,    // the check-list of layers stays disabled
    LAYERINFO_ENABLE = 1,     // it is enabled while import by layers is chosen
    LAYERINFO_ALLOWPANEL = 2, // the panel may appear for Photoshop documents
};

// Sent to the docked window of the host; wParam is a QVFileSelChange. Pointers in lParam are valid during the message
// only. The answer is ignored.
constexpr UINT WM_QV_FILESELCHANGE = WM_USER + 10001;

enum QVFileSelChange : WPARAM {
    FILESEL_MISSING = 0,  // the focused item does not exist on disk; lParam 0
    FILESEL_ONE = 1,      // one item or none is selected; lParam: its path as const wchar_t*, null for none
    FILESEL_SEVERAL = 2,  // several items are selected; lParam: pointer to their number, a 32-bit integer
    FILESEL_ATTACHED = 5, // the window was docked, or the file type was changed; lParam: the CQVFileDialog*
};

// Sent by the folder import panel to the dialog; wParam and lParam 0.
constexpr UINT WM_QV_IMPORTFORDER = WM_USER + 10002;

// Posted to the dialog's list when it was skinned anew; wParam and lParam 0.
constexpr UINT WM_QV_LISTSKIN = 12345;

} // namespace _qv_commonwnd
