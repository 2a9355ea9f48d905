#include "Input.h"

namespace qvtest {
namespace {

constexpr int kVkShiftState = 1; // high byte of VkKeyScan
constexpr WCHAR kLastAscii = 0x7E;

void send(const INPUT& input) {
    INPUT copy = input;
    SendInput(1, &copy, sizeof copy);
}

void sendMouse(DWORD flags, DWORD data = 0) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = data;
    send(input);
}

void sendCharacter(wchar_t unit, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = unit;
    input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
    send(input);
}

bool isExtendedKey(WORD key) {
    switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_INSERT:
    case VK_DELETE:
        return true;
    default:
        return false;
    }
}

void typeCharacter(wchar_t unit) {
    const SHORT scan = unit <= kLastAscii ? VkKeyScanW(unit) : static_cast<SHORT>(-1);
    const int shiftState = HIBYTE(scan);
    if (scan == -1 || shiftState > kVkShiftState) {
        sendCharacter(unit, 0);
        sendCharacter(unit, KEYEVENTF_KEYUP);
        return;
    }
    pressKey(LOBYTE(scan), shiftState == kVkShiftState ? Shift : NoModifier);
}

} // namespace

void moveMouse(POINT screen) {
    SetCursorPos(screen.x, screen.y);
}

void mouseDown(MouseButton button) {
    sendMouse(button == MouseButton::Left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN);
}

void mouseUp(MouseButton button) {
    sendMouse(button == MouseButton::Left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP);
}

void turnWheel(int notches) {
    sendMouse(MOUSEEVENTF_WHEEL, static_cast<DWORD>(notches * WHEEL_DELTA));
}

void keyEvent(WORD key, bool down) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = (down ? 0u : KEYEVENTF_KEYUP) | (isExtendedKey(key) ? KEYEVENTF_EXTENDEDKEY : 0u);
    send(input);
}

void pressKey(WORD key, unsigned modifiers) {
    const struct {
        Modifier bit;
        WORD key;
    } held[] = {{Control, VK_CONTROL}, {Alt, VK_MENU}, {Shift, VK_SHIFT}};
    for (const auto& it : held) {
        if (modifiers & it.bit)
            keyEvent(it.key, true);
    }
    keyEvent(key, true);
    keyEvent(key, false);
    for (const auto& it : held) {
        if (modifiers & it.bit)
            keyEvent(it.key, false);
    }
}

void typeText(const std::wstring& text) {
    for (wchar_t unit : text)
        typeCharacter(unit);
}

POINT centreOf(HWND window) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

} // namespace qvtest
