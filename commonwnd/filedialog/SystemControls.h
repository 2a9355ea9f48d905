// The controls of the system's file dialog: their ids, and what is done to more than one of them.
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

// Height of the rows and of the closed field of the file-type combo. Null does nothing.
void SetComboHeights(HWND combo);

// The tool bar with the kinds of view: one without a title that is not the places bar, which may have none either.
// Null when it is not there.
HWND ViewToolBarOf(HWND frame);

// Makes the frame higher by so many pixels, lower by less than 0; its upper left corner stays.
void GrowFrame(HWND frame, int byPx);

} // namespace _qv_commonwnd
