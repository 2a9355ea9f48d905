// FolderFiles.h: the files of a folder, all of them or those of a type of the file dialog.
#pragma once

#include <afxwin.h>

#include <vector>

struct FolderFile {
    CString path; // whole
    CString name; // without its folder
    LONGLONG bytes = 0;
};

// The files (no folders) in `folder`, as the system lists them. None for a folder that is not there.
std::vector<FolderFile> FilesOfFolder(const CString& folder);

// The paths of those whose names fit the pattern, by name.
std::vector<CString> FilesOfType(const CString& folder, const CString& pattern);

// The pattern ("*.png;*.jpg") of the type with this description in a filter "description|pattern|...". The file dialog
// may show the pattern behind the description: what the text begins with counts. "*.*" when there is none.
CString PatternOfType(const CString& filter, const CString& type);
