// The dialogs that ask for one value.
#include "gallery/GalleryItem.h"

using namespace _qv_commonwnd;
using namespace _qv_commonctrl;

namespace {

constexpr wchar_t kFileNameForbids[] = L"\\/:*?\"<>|";

void AskNumber(IGalleryContext& context, CQVGetIntDlg& dialog, LPCWSTR titleKey, LPCWSTR labelKey) {
    dialog.m_strTitle = QV_LoadSysString(titleKey);
    dialog.m_strLabel = QV_LoadSysString(labelKey);
    if (context.Confirmed(L"CQVGetIntDlg", dialog.DoModal()))
        context.ReportNumber(L"CQVGetIntDlg", dialog.m_nValue);
}

void EnterInteger(IGalleryContext& context) {
    CQVGetIntDlg dialog(context.MainWnd());
    dialog.m_strIncludeKey = L"0123456789-";
    dialog.m_nValue = 250;
    AskNumber(context, dialog, L"IDS_GALLERY_INTEGER", L"IDS_COMMON_FRAME");
}

void EnterDuration(IGalleryContext& context) {
    CQVGetIntDlg dialog(context.MainWnd());
    dialog.m_nType = QVGETINT_TIMECODE;
    dialog.m_nValue = 1500;
    AskNumber(context, dialog, L"IDS_GALLERY_INTEGER_TIMECODE", L"IDS_COMMON_TIMECODE");
}

void EnterName(IGalleryContext& context) {
    CQVGetStrDlg dialog(context.MainWnd());
    dialog.m_strTitle = QV_LoadSysString(L"IDS_GALLERY_STRING");
    dialog.m_strText = L"Sequence 01";
    dialog.m_strInvalidChar = kFileNameForbids;
    if (context.Confirmed(L"CQVGetStrDlg", dialog.DoModal()))
        context.Report(L"CQVGetStrDlg", dialog.m_strText);
}

void EnterNote(IGalleryContext& context) {
    CQVGetStrDlg dialog(context.MainWnd());
    dialog.m_strTitle = QV_LoadSysString(L"IDS_GALLERY_STRING_WINDOW");
    dialog.m_bAllowEmpty = TRUE;
    if (context.Confirmed(L"CQVGetStrDlg", dialog.DoModalWindow()))
        context.Report(L"CQVGetStrDlg", dialog.m_strText);
}

void GoToTimecode(IGalleryContext& context) {
    CQVGetPointDlg dialog(context.MainWnd());
    dialog.SetFrameRate(TimecodeFrameRate(29.97, TRUE));
    dialog.m_nFrame = 1800;
    if (context.Confirmed(L"CQVGetPointDlg", dialog.DoModal()))
        context.ReportNumber(L"CQVGetPointDlg", dialog.m_nFrame);
}

void EditSafeColors(IGalleryContext& context) {
    CQVSafeColorDlg dialog(context.MainWnd());
    if (!context.Confirmed(L"CQVSafeColorDlg", dialog.DoModal()))
        return;
    const tag_QVSafeColor& color = dialog.m_SafeColor;
    CString text;
    text.Format(L"%.2f %.2f %.1f action %d", color.dLumLow, color.dLumHigh, color.dChromaHigh, color.nAction);
    context.Report(L"CQVSafeColorDlg", text);
}

const GalleryRegistration items[] = {
    GalleryRegistration({GalleryGroup::Values, L"integer", L"IDS_GALLERY_INTEGER", EnterInteger}),
    GalleryRegistration(
        {GalleryGroup::Values, L"integer-timecode", L"IDS_GALLERY_INTEGER_TIMECODE", EnterDuration}),
    GalleryRegistration({GalleryGroup::Values, L"string", L"IDS_GALLERY_STRING", EnterName}),
    GalleryRegistration({GalleryGroup::Values, L"string-window", L"IDS_GALLERY_STRING_WINDOW", EnterNote}),
    GalleryRegistration({GalleryGroup::Values, L"point", L"IDS_GALLERY_POINT", GoToTimecode}),
    GalleryRegistration({GalleryGroup::Values, L"safecolor", L"IDS_GALLERY_SAFECOLOR", EditSafeColors}),
};

} // namespace
