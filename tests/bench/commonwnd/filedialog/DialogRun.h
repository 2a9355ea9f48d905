// One run of a file dialog, ours or the system's with an empty hook, that does something once it is ready.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

enum class Whose { Ours, Bare };

// Shows the dialog in a folder, calls `action` with the dialog's frame when its files are listed and painted, and
// cancels it. Returns the seconds from the call until then.
double RunDialog(Whose whose, const std::wstring& folder, const std::function<void(HWND frame)>& action);

// The shell's list in the frame.
HWND ListOf(HWND frame);

// Paints what is left to paint in a window and all its children.
void PaintNow(HWND window);
