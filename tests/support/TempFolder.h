// A folder of its own for a test, deleted with everything in it at the end of the scope.
//
//   TempFolder folder;
//   std::wstring path = folder.file(L"a.txt", "content");
#pragma once

#include <cstddef>
#include <string>

namespace qvtest {

class TempFolder {
  public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    // Absolute, without a back-slash at the end.
    const std::wstring& path() const { return m_path; }

    // The path of something inside; nothing is made.
    std::wstring path(const std::wstring& relative) const { return m_path + L"\\" + relative; }

    // Makes a file with these bytes, and the folders on its way; returns its path.
    std::wstring file(const std::wstring& relative, const std::string& bytes = {}) const;

    // Makes a folder and those on its way; returns its path.
    std::wstring folder(const std::wstring& relative) const;

    // Lists every folder on the way here and all below, so that their dates of access change no more. To be called
    // before the system's folder dialog is told to select one of them: it finds an item by all its dates.
    void settleDates() const;

  private:
    std::wstring m_path;
};

// The bytes of a file; empty when it cannot be read.
std::string readFile(const std::wstring& path);

// Puts the current folder back. The system's file dialog leaves the one that it showed current, and a folder that is
// current cannot be deleted: declare it behind the TempFolder.
class CurrentFolderKept {
  public:
    CurrentFolderKept();
    ~CurrentFolderKept();
    CurrentFolderKept(const CurrentFolderKept&) = delete;
    CurrentFolderKept& operator=(const CurrentFolderKept&) = delete;

  private:
    std::wstring m_former;
};

} // namespace qvtest
