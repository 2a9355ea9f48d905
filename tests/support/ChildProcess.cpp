#include "ChildProcess.h"

#include <filesystem>
#include <vector>

namespace qvtest {
namespace {

constexpr UINT kKilledExitCode = 71;
constexpr DWORD kKillLimitMs = 5000;
constexpr size_t kReadBytes = 4096;

// The block of "name=value" texts that CreateProcess takes.
std::wstring environmentBlock(const std::map<std::wstring, std::wstring>& changes) {
    std::map<std::wstring, std::wstring> all;
    wchar_t* own = GetEnvironmentStringsW();
    for (const wchar_t* entry = own; *entry; entry += wcslen(entry) + 1) {
        const std::wstring text = entry;
        const size_t equals = text.find(L'=', 1);
        if (equals != std::wstring::npos)
            all[text.substr(0, equals)] = text.substr(equals + 1);
    }
    FreeEnvironmentStringsW(own);
    for (const auto& [name, value] : changes) {
        std::erase_if(all, [&](const auto& it) { return _wcsicmp(it.first.c_str(), name.c_str()) == 0; });
        if (!value.empty())
            all[name] = value;
    }
    std::wstring block;
    for (const auto& [name, value] : all)
        block += name + L"=" + value + L'\0';
    return block + L'\0';
}

std::string withoutCarriageReturns(const std::string& text) {
    std::string clean;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' || i + 1 == text.size() || text[i + 1] != '\n')
            clean += text[i];
    }
    return clean;
}

} // namespace

ChildProcess::ChildProcess(const std::wstring& program, const std::wstring& arguments,
                           const ChildOptions& options) {
    SECURITY_ATTRIBUTES inherit = {sizeof inherit, nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    CreatePipe(&readEnd, &writeEnd, &inherit, 0);
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = writeEnd;
    startup.hStdError = writeEnd;
    PROCESS_INFORMATION info = {};
    std::wstring command = L"\"" + program + L"\" " + arguments;
    std::wstring environment = environmentBlock(options.environment);
    const BOOL started = CreateProcessW(
        program.c_str(), command.data(), nullptr, nullptr, TRUE, CREATE_UNICODE_ENVIRONMENT,
        environment.data(), options.folder.empty() ? nullptr : options.folder.c_str(), &startup, &info);
    CloseHandle(writeEnd);
    if (!started) {
        CloseHandle(readEnd);
        return;
    }
    CloseHandle(info.hThread);
    m_process = info.hProcess;
    m_id = info.dwProcessId;
    startReader(readEnd);
}

// Reads all the time: a child that prints more than the pipe holds would stand still.
void ChildProcess::startReader(HANDLE readEnd) {
    m_reader = std::thread([this, readEnd] {
        char buffer[kReadBytes];
        DWORD got = 0;
        while (ReadFile(readEnd, buffer, sizeof buffer, &got, nullptr) && got > 0)
            m_output.append(buffer, got);
        CloseHandle(readEnd);
    });
}

ChildProcess::~ChildProcess() {
    if (!m_process)
        return;
    if (m_reader.joinable()) {
        TerminateProcess(m_process, kKilledExitCode);
        WaitForSingleObject(m_process, kKillLimitMs);
        m_reader.join();
    }
    CloseHandle(m_process);
}

bool ChildProcess::wait(DWORD limitMs) {
    if (!m_process || WaitForSingleObject(m_process, limitMs) != WAIT_OBJECT_0)
        return false;
    if (m_reader.joinable()) {
        m_reader.join();
        m_output = withoutCarriageReturns(m_output);
        GetExitCodeProcess(m_process, &m_exitCode);
    }
    return true;
}

ChildResult runChild(const std::wstring& program, const std::wstring& arguments, const ChildOptions& options,
                     DWORD limitMs) {
    ChildProcess child(program, arguments, options);
    ChildResult result;
    result.ended = child.wait(limitMs);
    if (result.ended) {
        result.exitCode = child.exitCode();
        result.output = child.output();
    }
    return result;
}

std::wstring programFolder() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return std::filesystem::path(path).parent_path().wstring();
}

} // namespace qvtest
