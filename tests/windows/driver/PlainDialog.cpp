#include "PlainDialog.h"

#include <vector>

namespace {

constexpr WORD kButtonClass = 0x0080;
constexpr WORD kEditClass = 0x0081;

// Writes the parts of a dialog template one after the other.
class TemplateWriter {
  public:
    void words(std::initializer_list<WORD> values) { m_data.insert(m_data.end(), values); }

    void text(const wchar_t* it) {
        do
            m_data.push_back(static_cast<WORD>(*it));
        while (*it++);
    }

    void bytes(const void* data, size_t size) {
        const auto* first = static_cast<const WORD*>(data);
        m_data.insert(m_data.end(), first, first + size / sizeof(WORD));
    }

    void item(WORD windowClass, DWORD style, const RECT& place, int id, const wchar_t* title) {
        if (m_data.size() % 2)
            m_data.push_back(0); // items begin at a multiple of four bytes
        DLGITEMTEMPLATE head = {};
        head.style = style | WS_CHILD | WS_VISIBLE | WS_TABSTOP;
        head.x = static_cast<short>(place.left);
        head.y = static_cast<short>(place.top);
        head.cx = static_cast<short>(place.right - place.left);
        head.cy = static_cast<short>(place.bottom - place.top);
        head.id = static_cast<WORD>(id);
        bytes(&head, sizeof head);
        words({0xFFFF, windowClass});
        text(title);
        words({0});
    }

    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_data.data()); }

  private:
    std::vector<WORD> m_data;
};

TemplateWriter makeTemplate() {
    TemplateWriter writer;
    DLGTEMPLATE head = {};
    head.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | DS_CENTER;
    head.cdit = 4;
    head.cx = 160;
    head.cy = 60;
    writer.bytes(&head, sizeof head);
    writer.words({0, 0});
    writer.text(PlainDialog::kTitle);
    writer.item(kEditClass, WS_BORDER | ES_AUTOHSCROLL, {10, 6, 150, 18}, PlainDialog::kEditId, L"");
    writer.item(kButtonClass, BS_AUTOCHECKBOX, {10, 22, 150, 34}, PlainDialog::kCheckId, L"Tick");
    writer.item(kButtonClass, BS_DEFPUSHBUTTON, {10, 40, 70, 54}, IDOK, L"OK");
    writer.item(kButtonClass, BS_PUSHBUTTON, {90, 40, 150, 54}, IDCANCEL, L"Cancel");
    return writer;
}

} // namespace

INT_PTR PlainDialog::run() {
    const TemplateWriter dialogTemplate = makeTemplate();
    return DialogBoxIndirectParamW(GetModuleHandleW(nullptr), dialogTemplate.get(), nullptr, dialogProc,
                                   reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK PlainDialog::dialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        SetWindowLongPtrW(window, DWLP_USER, lParam);
    auto* self = reinterpret_cast<PlainDialog*>(GetWindowLongPtrW(window, DWLP_USER));
    if (message == WM_CLOSE && self && self->m_closing != Closing::Polite)
        return TRUE;
    return message == WM_COMMAND && self && self->onCommand(window, LOWORD(wParam));
}

bool PlainDialog::onCommand(HWND window, int id) {
    if ((id != IDOK && id != IDCANCEL) || (id == IDCANCEL && m_closing == Closing::Deaf))
        return false;
    wchar_t buffer[256] = {};
    GetDlgItemTextW(window, kEditId, buffer, static_cast<int>(std::size(buffer)));
    text = buffer;
    checked = IsDlgButtonChecked(window, kCheckId) == BST_CHECKED;
    EndDialog(window, id);
    return true;
}
