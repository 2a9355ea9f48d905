// Finds a library of the "CoreDLL" folder beside the installation and loads it.
#pragma once

#include "ProcessServices.h"

namespace _qv_commonwnd {

// What to look for. The arrays are borrowed.
struct CoreLibraryDescription {
    const wchar_t* const* firstFolders; // carried for callers; the search does not consult it
    int firstFolderCount;
    const wchar_t* const* searchFolders; // folders below CoreDLL whose x64 folders go into Path
    int searchFolderCount;
    const wchar_t* baseName; // of the library's file, without ".dll"
    const char* entryName;   // the entry that answers the interface
};

// What QV_LoadCoreLibrary takes of "Path" at most, in UTF-16 units. A longer one counts as empty.
inline constexpr std::size_t kPathVariableMaxUnits = 4095;

// Looks for the library: by the normal search order, then with the CoreDLL folder in Path. The folder is
// looked for in `folder`, or, when that is null, in the folder that holds the executable's folder, and then
// in each folder below that one. Path is extended only when CoreDLL was found and the first try failed.
// Answers the module and sets `api` to what its entry answered; both are null when the library or its entry
// is missing or the entry answers null (the library is freed again then). Shows nothing.
IProcessServices::Module QV_LoadCoreLibrary(IProcessServices& services, const wchar_t* folder,
                                            const CoreLibraryDescription& description, void*& api);

// The value that Path gets: `path` and ";", then the folder of CoreDLL and the x64 folders below it, each
// followed by ";" and only when the value does not hold it yet. `base` ends with a back slash.
std::wstring ExtendedPath(std::wstring path, const std::wstring& base,
                          const CoreLibraryDescription& description);

} // namespace _qv_commonwnd
