// Runs another program and collects what it prints and its exit code.
//
//   ChildResult result = runChild(L"probe.exe", L"--load x.dll");
//   EXPECT_EQ(0u, result.exitCode);
//
// A program to be driven while it runs: ChildProcess.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <thread>

namespace qvtest {

struct ChildOptions {
    std::wstring folder;                              // current folder; empty: this process's
    std::map<std::wstring, std::wstring> environment; // set on top of this process's; empty value: removed
};

// Started by its constructor; killed by its destructor when it still runs.
class ChildProcess {
  public:
    // program: path of the executable; arguments: the rest of the command line, quoted by the caller.
    ChildProcess(const std::wstring& program, const std::wstring& arguments,
                 const ChildOptions& options = {});
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();

    // Whether it could be started at all.
    bool started() const { return m_process != nullptr; }
    DWORD id() const { return m_id; }

    // Waits for the end; false and still running when the time passed.
    bool wait(DWORD limitMs);

    // After a successful wait.
    DWORD exitCode() const { return m_exitCode; }
    // Standard output and error together, after a successful wait; line ends are \n.
    const std::string& output() const { return m_output; }

  private:
    void startReader(HANDLE readEnd);

    HANDLE m_process = nullptr;
    DWORD m_id = 0;
    DWORD m_exitCode = STILL_ACTIVE;
    std::string m_output;
    std::thread m_reader;
};

struct ChildResult {
    bool ended = false; // false: could not be started, or was killed because it took too long
    DWORD exitCode = STILL_ACTIVE;
    std::string output;
};

ChildResult runChild(const std::wstring& program, const std::wstring& arguments = {},
                     const ChildOptions& options = {}, DWORD limitMs = 30000);

// The folder of this test program, where programs built beside it are; without a back-slash at the end.
std::wstring programFolder();

} // namespace qvtest
