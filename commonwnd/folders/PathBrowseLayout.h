// Figures of the folder chooser's window.
#pragma once

#include <QVCaptionBand.h>

namespace _qv_commonwnd {

// Client rectangles of the controls, pixels.
struct PathBrowseLayout {
    CRect title;
    CRect tree; // the tree or the window that holds it
    CRect ok;
    CRect cancel;
    CRect newFolder;
};

// Size of the whole window, pixels.
CSize PathBrowseSize(UINT dpi);

// Places of the controls in a client rectangle. A client too small for the tree gives it no height.
PathBrowseLayout LayOutPathBrowse(const CRect& client, UINT dpi);

// The painted caption of the window, its close button and its ground.
_qv_commonctrl::QVCaptionFigures PathBrowseCaption();

} // namespace _qv_commonwnd
