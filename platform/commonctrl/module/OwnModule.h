// OwnModule.h: where this DLL lies, and what it tells the debugger.
#pragma once

#include <windows.h>

#include <string>

namespace _qv_commonctrl {

// The module handle of this DLL (of the program when all sources are linked into one).
HINSTANCE GetOwnModule();

// A folder `name` beside the DLL's own folder, without a trailing back-slash: for ...\bin\this.dll it is
// ...\name. Data folders are found this way wherever the tree is copied to.
std::wstring GetDataFolder(const wchar_t* name);

// Writes one line to the debugger output: the DLL's name, the text and a line end.
void DebugLine(const std::wstring& text);

} // namespace _qv_commonctrl
