#include "Watchdog.h"

#include "ModalScript.h"

#include <tlhelp32.h>

#include <atomic>
#include <cstdio>
#include <mutex>

namespace qvtest {
namespace {

constexpr DWORD kPollMs = 200;
constexpr DWORD kPictureMs = 5000;
constexpr int kMostFrames = 48;

std::mutex g_names;
// With room from the start: the leak checks count blocks while these change.
std::string withRoom() {
    constexpr std::size_t kUnits = 256;
    std::string text;
    text.reserve(kUnits);
    return text;
}
std::string g_what = withRoom();
std::string g_step = withRoom();
std::atomic<ULONGLONG> g_deadline{0};

// A thread that stands still may hold the heap or the run-time's streams: what is written while it does uses neither.
void write(const char* text) {
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), text, static_cast<DWORD>(strlen(text)), &written, nullptr);
}

void writeFrame(DWORD64 address) {
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH] = L"?";
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(address), &module);
    if (module)
        GetModuleFileNameW(module, path, MAX_PATH);
    const wchar_t* const slash = wcsrchr(path, L'\\');
    char line[MAX_PATH + 64];
    snprintf(line, sizeof line, "    %ls+0x%llx\n", slash ? slash + 1 : path,
             static_cast<unsigned long long>(address - reinterpret_cast<DWORD64>(module)));
    write(line);
}

// One frame up. Code without unwind data is a leaf: its caller's address is on top of the stack.
bool unwind(CONTEXT& context) {
    DWORD64 base = 0;
    if (auto* const function = RtlLookupFunctionEntry(context.Rip, &base, nullptr)) {
        void* data = nullptr;
        DWORD64 frame = 0;
        RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &data, &frame, nullptr);
    } else {
        SIZE_T read = 0;
        if (!ReadProcessMemory(GetCurrentProcess(), reinterpret_cast<const void*>(context.Rsp), &context.Rip,
                               sizeof context.Rip, &read))
            return false;
        context.Rsp += sizeof context.Rip;
    }
    return context.Rip != 0;
}

void writeStack(DWORD id) {
    const HANDLE thread =
        OpenThread(THREAD_SUSPEND_RESUME | THREAD_GET_CONTEXT | THREAD_QUERY_INFORMATION, FALSE, id);
    DWORD64 frames[kMostFrames];
    int count = 0;
    if (thread && SuspendThread(thread) != static_cast<DWORD>(-1)) {
        CONTEXT context = {};
        context.ContextFlags = CONTEXT_FULL;
        if (GetThreadContext(thread, &context)) {
            do
                frames[count++] = context.Rip;
            while (count < kMostFrames && unwind(context));
        }
        ResumeThread(thread);
    }
    char line[64];
    snprintf(line, sizeof line, "  thread %lu\n", id);
    write(line);
    for (int i = 0; i < count; ++i)
        writeFrame(frames[i]);
    if (thread)
        CloseHandle(thread);
}

void writeStacks() {
    const HANDLE all = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    for (BOOL more = Thread32First(all, &entry); more; more = Thread32Next(all, &entry)) {
        if (entry.th32OwnerProcessID == GetCurrentProcessId() && entry.th32ThreadID != GetCurrentThreadId())
            writeStack(entry.th32ThreadID);
    }
    CloseHandle(all);
}

DWORD WINAPI savePicture(LPVOID) {
    const std::string path = "picture: " + toUtf8(saveFailurePicture()) + "\n";
    write(path.c_str());
    return 0;
}

DWORD WINAPI watch(LPVOID) {
    for (ULONGLONG deadline = 0; deadline == 0 || GetTickCount64() < deadline; deadline = g_deadline)
        Sleep(kPollMs);
    {
        const std::lock_guard lock(g_names);
        write(("hangs: " + g_what + (g_step.empty() ? "" : ", in " + g_step) + "\n").c_str());
    }
    writeStacks();
    const HANDLE picture = CreateThread(nullptr, 0, &savePicture, nullptr, 0, nullptr);
    WaitForSingleObject(picture, kPictureMs);
    TerminateProcess(GetCurrentProcess(), Watchdog::kExitCode);
    return 0;
}

DWORD limitOr(DWORD limitMs) {
    wchar_t text[16] = L"";
    return GetEnvironmentVariableW(L"QV_TEST_LIMIT_MS", text, 16) ? wcstoul(text, nullptr, 10) : limitMs;
}

} // namespace

void Watchdog::begin(const std::string& what, DWORD limitMs) {
    static const HANDLE watcher = CreateThread(nullptr, 0, &watch, nullptr, 0, nullptr);
    const std::lock_guard lock(g_names);
    g_what = what;
    g_step.clear();
    g_deadline = watcher ? GetTickCount64() + limitOr(limitMs) : 0;
}

void Watchdog::note(const std::string& step) {
    const std::lock_guard lock(g_names);
    g_step = step;
}

void Watchdog::end() {
    g_deadline = 0;
}

} // namespace qvtest
