// The Yes/No question with its tick box, and forgetting the remembered answer.
#include "gallery/GalleryItem.h"

using namespace _qv_commonwnd;
using namespace _qv_commonctrl;

namespace {

CString AnswerName(UINT answer) {
    CString text;
    text.Format(L"%u%s", answer,
                answer == QVMESSAGE_YES      ? L" (Yes)"
                : answer == QVMESSAGE_NO     ? L" (No)"
                : answer == QVMESSAGE_CANCEL ? L" (Cancel)"
                                             : L"");
    return text;
}

void Ask(IGalleryContext& context, LPCWSTR questionKey) {
    const UINT answer = QV_MessageBox(QV_LoadSysString(L"IDS_GALLERY_ASK_CAPTION"),
                                      QV_LoadSysString(questionKey), MB_YESNO, context.MainWnd());
    context.Report(L"QV_MessageBox", AnswerName(answer));
}

void AskQuestion(IGalleryContext& context) {
    Ask(context, L"IDS_GALLERY_ASK_TEXT");
}

void AskLongQuestion(IGalleryContext& context) {
    Ask(context, L"IDS_GALLERY_ASKLONG_TEXT");
}

void ForgetAnswer(IGalleryContext& context) {
    context.ReportNumber(L"QV_MessageRest", QV_MessageRest());
}

const GalleryRegistration ask({GalleryGroup::Messages, L"messagebox", L"IDS_GALLERY_MESSAGEBOX",
                               AskQuestion});
const GalleryRegistration askLong({GalleryGroup::Messages, L"messagebox-long", L"IDS_GALLERY_MESSAGEBOX_LONG",
                                   AskLongQuestion});
const GalleryRegistration forget({GalleryGroup::Messages, L"messagereset", L"IDS_GALLERY_MESSAGERESET",
                                  ForgetAnswer});

} // namespace
