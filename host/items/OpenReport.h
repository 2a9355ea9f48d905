// OpenReport.h: what every open dialog of the gallery does before and after its run.
#pragma once

#include "gallery/GalleryContext.h"

// The folder of the samples, to start in; it must live as long as the dialog runs.
void StartIn(_qv_commonwnd::CQVFileDialog& dialog, const CString& folder);

// What a host does with the answer: the kind of the selection first, then the files, or the folder, of which the files
// of the chosen type are imported. `filter` is the dialog's. Whether the dialog was confirmed.
bool ReportOpened(IGalleryContext& context, _qv_commonwnd::CQVFileDialog& dialog, INT_PTR end,
                  const CString& filter);
