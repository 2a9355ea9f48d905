// The Yes/No question with its tick box, and forgetting the remembered answer.
#include "GalleryItem.h"

using namespace _qv_commonwnd;
using namespace _qv_commonctrl;

namespace {

CString AnswerName(UINT answer) {
    switch (answer) {
    case 2:
        return L"2 (Yes)";
    case 4:
        return L"4 (No)";
    case 8:
        return L"8 (Cancel)";
    default: {
        CString text;
        text.Format(L"%u", answer);
        return text;
    }
    }
}

void AskQuestion(IGalleryContext& context) {
    const UINT answer = QV_MessageBox(QV_LoadSysString(L"IDS_GALLERY_ASK_CAPTION"),
                                      QV_LoadSysString(L"IDS_GALLERY_ASK_TEXT"), MB_YESNO, context.MainWnd());
    context.Report(L"QV_MessageBox", AnswerName(answer));
}

void AskLongQuestion(IGalleryContext& context) {
    const UINT answer =
        QV_MessageBox(QV_LoadSysString(L"IDS_GALLERY_ASK_CAPTION"),
                      QV_LoadSysString(L"IDS_GALLERY_ASKLONG_TEXT"), MB_YESNO, context.MainWnd());
    context.Report(L"QV_MessageBox", AnswerName(answer));
}

void ForgetAnswer(IGalleryContext& context) {
    CString result;
    result.Format(L"%u", QV_MessageRest());
    context.Report(L"QV_MessageRest", result);
}

const GalleryRegistration ask({GalleryGroup::Messages, L"messagebox", L"IDS_GALLERY_MESSAGEBOX",
                               AskQuestion});
const GalleryRegistration askLong({GalleryGroup::Messages, L"messagebox-long", L"IDS_GALLERY_MESSAGEBOX_LONG",
                                   AskLongQuestion});
const GalleryRegistration forget({GalleryGroup::Messages, L"messagereset", L"IDS_GALLERY_MESSAGERESET",
                                  ForgetAnswer});

} // namespace
