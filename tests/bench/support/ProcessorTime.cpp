#include "ProcessorTime.h"

#include <windows.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string_view>

namespace {

// The Unix side as Wine shows it to programs.
constexpr wchar_t kProcFolder[] = L"Z:\\proc\\";
constexpr double kTicksPerSecond = 100.0;
constexpr int kUserTicksField = 11; // counted after the closing bracket of the name
constexpr int kSystemTicksField = 12;
constexpr double kFileTimePerSecond = 1e7;

std::string ReadFile(const std::wstring& path) {
    const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    std::string text;
    char part[4096];
    DWORD read = 0;
    while (::ReadFile(file, part, sizeof part, &read, nullptr) && read > 0)
        text.append(part, read);
    ::CloseHandle(file);
    return text;
}

// The value of a variable in the text of a process's environment.
std::string Variable(const std::string& environment, const std::string& name) {
    const std::string wanted = name + "=";
    for (size_t at = 0; at < environment.size();) {
        const std::string_view entry = environment.c_str() + at;
        if (entry.substr(0, wanted.size()) == wanted)
            return std::string(entry.substr(wanted.size()));
        at += entry.size() + 1;
    }
    return {};
}

double TicksOf(const std::string& stat) {
    const size_t bracket = stat.rfind(')');
    if (bracket == std::string::npos)
        return 0.0;
    std::istringstream fields(stat.substr(bracket + 1));
    std::string field;
    double ticks = 0.0;
    for (int i = 0; i <= kSystemTicksField && fields >> field; ++i) {
        if (i >= kUserTicksField)
            ticks += std::atof(field.c_str());
    }
    return ticks;
}

std::wstring StatFile(const std::wstring& process) {
    return kProcFolder + process + L"\\stat";
}

// The window server of this program's own prefix.
std::wstring FindServer(const std::string& prefix) {
    WIN32_FIND_DATAW found;
    const HANDLE search = ::FindFirstFileW((std::wstring(kProcFolder) + L"*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return {};
    std::wstring server;
    do {
        const std::wstring name = found.cFileName;
        if (name.find_first_not_of(L"0123456789") != std::wstring::npos)
            continue;
        if (ReadFile(kProcFolder + name + L"\\comm").rfind("wineserver", 0) == 0 &&
            Variable(ReadFile(kProcFolder + name + L"\\environ"), "WINEPREFIX") == prefix)
            server = name;
    } while (server.empty() && ::FindNextFileW(search, &found));
    ::FindClose(search);
    return server;
}

// A variable of this program's own environment. (/proc/self is the window server, which opens the files.)
std::wstring OwnVariable(const wchar_t* name) {
    wchar_t value[64] = L"";
    const DWORD length = ::GetEnvironmentVariableW(name, value, ARRAYSIZE(value));
    return length < ARRAYSIZE(value) ? std::wstring(value, length) : std::wstring();
}

// The X server of this program's own display: who started it says so, or its lock file holds its process id.
std::wstring FindDisplay() {
    const std::wstring told = OwnVariable(L"QV_DISPLAY_PROCESS");
    if (!told.empty())
        return told;
    const std::wstring display = OwnVariable(L"DISPLAY");
    const size_t colon = display.find(L':');
    if (colon == std::wstring::npos)
        return {};
    const int number = _wtoi(display.c_str() + colon + 1);
    const int process = std::atoi(ReadFile(L"Z:\\tmp\\.X" + std::to_wstring(number) + L"-lock").c_str());
    return process > 0 ? std::to_wstring(process) : std::wstring();
}

} // namespace

ProcessorTime::ProcessorTime() {
    const std::string environment = ReadFile(std::wstring(kProcFolder) + L"self\\environ");
    const std::wstring server = FindServer(Variable(environment, "WINEPREFIX"));
    const std::wstring display = FindDisplay();
    if (!server.empty()) {
        m_statFiles.push_back(StatFile(server));
        m_names += ", window server";
    }
    if (!display.empty()) {
        m_statFiles.push_back(StatFile(display));
        m_names += ", display";
    }
}

double ProcessorTime::Seconds() const {
    FILETIME created, ended, kernel, user;
    ::GetProcessTimes(::GetCurrentProcess(), &created, &ended, &kernel, &user);
    const auto seconds = [](const FILETIME& t) {
        return static_cast<double>(static_cast<unsigned long long>(t.dwHighDateTime) << 32 |
                                   t.dwLowDateTime) /
               kFileTimePerSecond;
    };
    double total = seconds(kernel) + seconds(user);
    for (const std::wstring& file : m_statFiles)
        total += TicksOf(ReadFile(file)) / kTicksPerSecond;
    return total;
}
