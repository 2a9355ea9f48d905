#include "ControlsFixture.h"

namespace controls_test {
void TestDialog::Open() {
    ASSERT_TRUE(Create(m_templateId));
    ShowWindow(SW_SHOW);
    SetForegroundWindow();
    // The window server grants the foreground when it gets round to it.
    qvtest::pumpUntil([this] { return ::GetForegroundWindow() == m_hWnd; });
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

} // namespace controls_test
