#include "ControlsFixture.h"

namespace controls_test {
namespace {

constexpr ULONGLONG kForegroundMs = 5000;

} // namespace

void Pump() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

CString SkinFolder(const wchar_t* name) {
    const CString current = QV_GetSkinPath();
    return current.Left(current.ReverseFind(L'\\') + 1) + name;
}

void TestDialog::Open() {
    ASSERT_TRUE(Create(m_templateId));
    ShowWindow(SW_SHOW);
    SetForegroundWindow();
    // The window server grants the foreground when it gets round to it.
    const ULONGLONG deadline = ::GetTickCount64() + kForegroundMs;
    do
        Pump();
    while (::GetForegroundWindow() != m_hWnd && ::GetTickCount64() < deadline);
    ASSERT_EQ(m_hWnd, ::GetForegroundWindow());
}

CSize TestDialog::TemplateSize() const {
    const HINSTANCE program = ::GetModuleHandleW(nullptr);
    const HRSRC place = ::FindResourceW(program, MAKEINTRESOURCEW(m_templateId), RT_DIALOG);
    const auto* bytes = static_cast<const unsigned char*>(::LockResource(::LoadResource(program, place)));
    short units[2] = {};
    constexpr std::size_t sizeOffset = 22; // after version, signature, help id, both styles, count, x and y
    memcpy(units, bytes + sizeOffset, sizeof units);
    RECT pixels = {0, 0, units[0], units[1]};
    ::MapDialogRect(m_hWnd, &pixels);
    return CSize(pixels.right, pixels.bottom);
}

CRect TestDialog::ItemRect(int id) const {
    CRect rect;
    ::GetWindowRect(Item(id), rect);
    ScreenToClient(rect);
    return rect;
}

LRESULT TestDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_QV_CHECKCOMBO_CLOSEUP) {
        ++closeUps;
        closeUpId = wParam;
        return 0;
    }
    if (message == WM_COMMAND && wParam == MAKEWPARAM(IDC_PUSH, BN_CLICKED))
        ++clicks;
    return CQVDialog::WindowProc(message, wParam, lParam);
}

void Controls::SetUp() {
    QV_SetSkinPath(nullptr);
    QV_SetLanguage(L"en-US");
}

void Controls::TearDown() {
    QV_SetSkinPath(nullptr);
    QV_SetDictCallBack(nullptr);
}

Picture Controls::Shot(HWND wnd) {
    Pump();
    return Picture::ofClient(wnd);
}

Picture Controls::WindowShot(HWND wnd) {
    Pump();
    return Picture::ofWindow(wnd);
}

} // namespace controls_test
