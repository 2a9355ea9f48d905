// The open dialog's further forms: with a preview, for a whole folder, for the layers of a document.
#include "OpenReport.h"

#include "gallery/GalleryItem.h"
#include "windows/FilePreviewWnd.h"

#include <vector>

using namespace _qv_commonwnd;

namespace {

constexpr const wchar_t* kFilter = L"Pictures|*.png;*.jpg;*.bmp;*.psd|Sound|*.wav|All files|*.*|";

void OpenWithPreview(IGalleryContext& context) {
    CFilePreviewWnd preview(context);
    if (!preview.CreateHidden())
        return;
    CQVFileDialog dialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT, kFilter,
                         context.MainWnd(), 0, FALSE, FALSE, FDO_KEEPOK | FDO_IMPORTFOLDER);
    const CString folder = context.SampleFolder();
    StartIn(dialog, folder);
    dialog.SetAdvanceWnd(&preview);
    ReportOpened(context, dialog, dialog.DoModal(), kFilter);
}

void ImportFolder(IGalleryContext& context) {
    CQVFileDialog dialog(TRUE, nullptr, nullptr, 0, kFilter, context.MainWnd(), 0, FALSE, FALSE,
                         FDO_IMPORTFOLDER);
    const CString folder = context.SampleFolder();
    StartIn(dialog, folder);
    ReportOpened(context, dialog, dialog.DoModal(), kFilter);
}

// One line for each layer of the document, the bottom one first: taken or left out.
void ReportLayers(IGalleryContext& context, CQVFileDialog& dialog) {
    CStringArray names;
    std::vector<int> taken;
    dialog.GetImportLayerName(names);
    dialog.GetImportLayerInfo(taken);
    for (INT_PTR i = 0; i < names.GetSize() && static_cast<size_t>(i) < taken.size(); ++i)
        context.Report(taken[static_cast<size_t>(i)] ? L"layer" : L"left out", names.GetAt(i));
}

void ImportLayers(IGalleryContext& context) {
    CQVFileDialog dialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST, kFilter, context.MainWnd(), 0, FALSE,
                         FALSE, FDO_KEEPOK);
    dialog.EnableLayerInfo(LAYERINFO_ALLOWPANEL);
    const CString folder = context.SampleFolder();
    StartIn(dialog, folder);
    if (!ReportOpened(context, dialog, dialog.DoModal(), kFilter))
        return;
    context.Report(L"import", dialog.IsCompileImportType() ? L"rendered" : L"by layers");
    if (!dialog.IsCompileImportType())
        ReportLayers(context, dialog);
}

const GalleryRegistration items[] = {
    GalleryRegistration({GalleryGroup::Files, L"open-preview", L"IDS_GALLERY_OPENPREVIEW", OpenWithPreview}),
    GalleryRegistration({GalleryGroup::Files, L"import-folder", L"IDS_GALLERY_IMPORTFOLDER", ImportFolder}),
    GalleryRegistration({GalleryGroup::Files, L"open-psd", L"IDS_GALLERY_OPENPSD", ImportLayers}),
};

} // namespace
