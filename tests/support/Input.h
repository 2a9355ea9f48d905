// Mouse and keyboard input as a user makes it: through the system's input queue, so that hit testing,
// capture, focus, activation and dialog keys all take part. Nothing here waits until the input was handled;
// Driver does. All positions are screen pixels.
#pragma once

#include <windows.h>

#include <string>

namespace qvtest {

enum class MouseButton { Left, Right };

enum Modifier : unsigned { NoModifier = 0, Shift = 1, Control = 2, Alt = 4 };

void moveMouse(POINT screen);
void mouseDown(MouseButton button = MouseButton::Left);
void mouseUp(MouseButton button = MouseButton::Left);

// Turns the wheel under the pointer; positive notches turn away from the user.
void turnWheel(int notches);

// One key down and up, the modifiers (Modifier bits) held meanwhile. The key is a VK_ code or a capital or
// digit.
void pressKey(WORD key, unsigned modifiers = NoModifier);

// One key down or up only.
void keyEvent(WORD key, bool down);

// Types a text: characters of the keyboard as keys, all others (Chinese, surrogate pairs) as typed
// characters.
void typeText(const std::wstring& text);

// Centre of a window, in screen pixels.
POINT centreOf(HWND window);

} // namespace qvtest
