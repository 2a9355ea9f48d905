#include "GalleryContext.h"

void IGalleryContext::ReportNumber(LPCWSTR name, LONGLONG value) {
    CString text;
    text.Format(L"%I64d", value);
    Report(name, text);
}

bool IGalleryContext::Confirmed(LPCWSTR name, INT_PTR end) {
    if (end == IDOK)
        return true;
    Report(name, end == IDCANCEL ? L"IDCANCEL" : L"-1");
    return false;
}
