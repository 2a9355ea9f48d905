// QVModule.h: where this DLL lies, and files of its data folders.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

namespace _qv_commonctrl {

// The module handle of this DLL (of the program when all sources are linked into one).
HINSTANCE GetOwnModule();

// A folder `name` beside the DLL's own folder, without a trailing back-slash: for ...\bin\this.dll it is
// ...\name. Data folders are found this way wherever the tree is copied to.
std::wstring GetDataFolder(const wchar_t* name);

// Reads a whole file. FALSE, and `bytes` empty, when it cannot be opened or read or is larger than
// `mostBytes`.
bool ReadWholeFile(const std::wstring& path, std::size_t mostBytes, std::string& bytes);

bool FolderExists(const std::wstring& path);

// Writes one line to the debugger output: the DLL's name, the text and a line end.
void DebugLine(const std::wstring& text);

} // namespace _qv_commonctrl
