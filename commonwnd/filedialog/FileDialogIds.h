// The system file dialog's controls, and what is done to more than one of them.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

constexpr int kOpenButtonId = 1; // Open or Save
constexpr int kCancelButtonId = 2;
constexpr int kHelpButtonId = 1038;
constexpr int kFileTypeLabelId = 1090;
constexpr int kFileNameLabelId = 1089;
constexpr int kLookInLabelId = 1091;
constexpr int kListHolderId = 1120;
constexpr int kFileTypeComboId = 1136;
constexpr int kLookInComboId = 1137;
constexpr int kFileNameComboId = 1148;
constexpr int kPlacesBarId = 1184;
constexpr int kShellListId = 1; // inside the shell's view

constexpr wchar_t kShellViewClass[] = L"SHELLDLL_DefView";
constexpr wchar_t kToolBarClass[] = L"ToolbarWindow32";

// Children of the frame that the dialog makes.
constexpr int kPsdPanelId = 10001;
constexpr int kImportPanelId = 1000;

// Height of the rows and of the closed field of the file-type combo. Null does nothing.
void SetComboHeights(HWND combo);

// The shell's view in the frame and its list; null when it is not there (yet).
HWND ShellViewOf(HWND frame);
HWND ShellListOf(HWND frame);
HWND ShellListIn(HWND view);
bool IsShellView(HWND wnd);

// The tool bar with the kinds of view: one without a title that is not the places bar, which may have none either.
HWND ViewToolBarOf(HWND frame);

} // namespace _qv_commonwnd
