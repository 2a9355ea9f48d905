// The dialogs that ask for one value.
#include "GalleryItem.h"

using namespace _qv_commonwnd;
using namespace _qv_commonctrl;

namespace {

constexpr wchar_t kFileNameForbids[] = L"\\/:*?\"<>|";

CString Number(long long value) {
    CString text;
    text.Format(L"%I64d", value);
    return text;
}

bool Confirmed(IGalleryContext& context, LPCWSTR name, INT_PTR end) {
    if (end == IDOK)
        return true;
    context.Report(name, end == IDCANCEL ? L"IDCANCEL" : L"-1");
    return false;
}

void EnterInteger(IGalleryContext& context) {
    CQVGetIntDlg dialog(context.MainWnd());
    dialog.m_strTitle = QV_LoadSysString(L"IDS_GALLERY_INTEGER");
    dialog.m_strLabel = QV_LoadSysString(L"IDS_COMMON_FRAME");
    dialog.m_strIncludeKey = L"0123456789-";
    dialog.m_nValue = 250;
    if (Confirmed(context, L"CQVGetIntDlg", dialog.DoModal()))
        context.Report(L"CQVGetIntDlg", Number(dialog.m_nValue));
}

void EnterDuration(IGalleryContext& context) {
    CQVGetIntDlg dialog(context.MainWnd());
    dialog.m_strTitle = QV_LoadSysString(L"IDS_GALLERY_INTEGER_TIMECODE");
    dialog.m_strLabel = QV_LoadSysString(L"IDS_COMMON_TIMECODE");
    dialog.m_nType = QVGETINT_TIMECODE;
    dialog.m_nValue = 1500;
    if (Confirmed(context, L"CQVGetIntDlg", dialog.DoModal()))
        context.Report(L"CQVGetIntDlg", Number(dialog.m_nValue));
}

void EnterName(IGalleryContext& context) {
    CQVGetStrDlg dialog(context.MainWnd());
    dialog.m_strTitle = QV_LoadSysString(L"IDS_GALLERY_STRING");
    dialog.m_strText = L"Sequence 01";
    dialog.m_strInvalidChar = kFileNameForbids;
    if (Confirmed(context, L"CQVGetStrDlg", dialog.DoModal()))
        context.Report(L"CQVGetStrDlg", dialog.m_strText);
}

void EnterNote(IGalleryContext& context) {
    CQVGetStrDlg dialog(context.MainWnd());
    dialog.m_strTitle = QV_LoadSysString(L"IDS_GALLERY_STRING_WINDOW");
    dialog.m_bAllowEmpty = TRUE;
    if (Confirmed(context, L"CQVGetStrDlg", dialog.DoModalWindow()))
        context.Report(L"CQVGetStrDlg", dialog.m_strText);
}

void GoToTimecode(IGalleryContext& context) {
    CQVGetPointDlg dialog(context.MainWnd());
    dialog.SetFrameRate(TimecodeFrameRate(29.97, 1));
    dialog.m_nFrame = 1800;
    if (Confirmed(context, L"CQVGetPointDlg", dialog.DoModal()))
        context.Report(L"CQVGetPointDlg", Number(dialog.m_nFrame));
}

void EditSafeColors(IGalleryContext& context) {
    CQVSafeColorDlg dialog(context.MainWnd());
    if (!Confirmed(context, L"CQVSafeColorDlg", dialog.DoModal()))
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
