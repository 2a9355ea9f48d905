#include "TempFolder.h"

#include <windows.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace qvtest {

TempFolder::TempFolder() {
    static std::atomic<unsigned> serial{0};
    const std::wstring name = L"qvtest-" + std::to_wstring(GetCurrentProcessId()) + L"-";
    const auto temporary = std::filesystem::canonical(std::filesystem::temp_directory_path());
    std::filesystem::path path;
    do { // a process of the same number that was stopped may have left its folders
        path = temporary / (name + std::to_wstring(++serial));
    } while (!std::filesystem::create_directory(path));
    m_path = path.wstring();
}

TempFolder::~TempFolder() {
    std::error_code ignored; // a file still open stays behind in the temporary folder
    std::filesystem::remove_all(m_path, ignored);
}

std::wstring TempFolder::file(const std::wstring& relative, const std::string& bytes) const {
    const std::filesystem::path target = path(relative);
    std::filesystem::create_directories(target.parent_path());
    std::ofstream(target, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return target.wstring();
}

std::wstring TempFolder::folder(const std::wstring& relative) const {
    std::filesystem::create_directories(path(relative));
    return path(relative);
}

void TempFolder::settleDates() const {
    const auto list = [](const std::filesystem::path& folder) {
        std::error_code ignored;
        for (std::filesystem::directory_iterator entry(folder, ignored), end; entry != end;
             entry.increment(ignored))
            continue;
    };
    for (std::filesystem::path above = m_path; above.has_relative_path(); above = above.parent_path())
        list(above);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(m_path)) {
        if (entry.is_directory())
            list(entry.path());
    }
}

CurrentFolderKept::CurrentFolderKept() {
    m_former.resize(GetCurrentDirectoryW(0, nullptr));
    m_former.resize(GetCurrentDirectoryW(static_cast<DWORD>(m_former.size()), m_former.data()));
}

CurrentFolderKept::~CurrentFolderKept() {
    SetCurrentDirectoryW(m_former.c_str());
}

std::string readFile(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace qvtest
