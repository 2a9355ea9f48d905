#include "ResultLog.h"

#include <string>

namespace {

constexpr size_t kMostBytesPerUnit = 3; // of UTF-8, for a unit of UTF-16

} // namespace

CResultLog::CResultLog(const CString& fileName) {
    if (!fileName.IsEmpty())
        m_hFile = CreateFileW(fileName, GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
}

CResultLog::~CResultLog() {
    if (m_hFile != INVALID_HANDLE_VALUE)
        CloseHandle(m_hFile);
}

void CResultLog::Write(LPCWSTR name, CString value) {
    if (m_hFile == INVALID_HANDLE_VALUE)
        return;
    value.Replace(L'\r', L' ');
    value.Replace(L'\n', L' ');
    const CString line = CString(name) + L"\t" + value + L"\n";
    std::string bytes(static_cast<size_t>(line.GetLength()) * kMostBytesPerUnit, '\0');
    const int length = WideCharToMultiByte(CP_UTF8, 0, line, line.GetLength(), bytes.data(),
                                           static_cast<int>(bytes.size()), nullptr, nullptr);
    DWORD written = 0;
    WriteFile(m_hFile, bytes.data(), static_cast<DWORD>(length), &written, nullptr);
}
