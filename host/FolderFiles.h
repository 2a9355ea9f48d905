// FolderFiles.h: the files of a folder that are of a type of the file dialog.
#pragma once

#include <afxwin.h>

// The pattern ("*.png;*.jpg") of the type with this description in a filter "description|pattern|...". The file dialog
// may show the pattern behind the description: what the text begins with counts. "*.*" when there is none.
CString PatternOfType(const CString& filter, const CString& type);

// Full paths of the files (no folders) in `folder` whose names fit the pattern, by name. None for a folder that is not
// there.
void ListFolderFiles(const CString& folder, const CString& pattern, CStringArray& files);
