#include "Census.h"

#include <tlhelp32.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace qvtest {
namespace {

// GetGuiResources and GetProcessHandleCount answer 0 under Wine, so the tables behind them are read. This is
// test code for the test platform; the product uses documented calls only.
constexpr unsigned kPebOffset = 0x60;      // in the thread block
constexpr unsigned kGdiTableOffset = 0xF8; // in the process block
constexpr unsigned kGdiHandles = 0x10000;
constexpr unsigned kFirstUserHandle = 0x20;
constexpr unsigned kLastUserHandle = 0xFFF0;
constexpr unsigned kEmptySlotsToEnd = 2048; // user handles are given out lowest first
constexpr ULONG kSystemHandleInformation = 16;
constexpr ULONG kFirstHandleBufferBytes = 1u << 20;
constexpr LONG kStatusLengthMismatch = static_cast<LONG>(0xC0000004);

struct GdiTableEntry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;
    std::uint8_t kind;
    std::uint8_t flags;
    std::uint64_t user;
};

struct SystemHandle {
    ULONG process;
    BYTE type;
    BYTE flags;
    USHORT handle;
    void* object;
    ULONG access;
};

struct SystemHandleList {
    ULONG count;
    SystemHandle first[1];
};

const GdiTableEntry* gdiTable() {
    std::uint64_t processBlock = 0;
    __asm__("movq %%gs:%c1, %0" : "=r"(processBlock) : "i"(kPebOffset)); // NOLINT(hicpp-no-assembler)
    return *reinterpret_cast<const GdiTableEntry* const*>(processBlock + kGdiTableOffset);
}

const char* gdiKind(HGDIOBJ object) {
    switch (GetObjectType(object)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return "pen";
    case OBJ_BRUSH:
        return "brush";
    case OBJ_BITMAP:
        return "bitmap";
    case OBJ_FONT:
        return "font";
    case OBJ_REGION:
        return "region";
    case OBJ_PAL:
        return "palette";
    case OBJ_MEMDC:
        return "memory dc";
    case OBJ_DC:
        // Released window contexts stay in a cache: one that names no window is not in use.
        return WindowFromDC(static_cast<HDC>(object)) ? "window dc" : nullptr;
    case OBJ_METAFILE:
    case OBJ_METADC:
    case OBJ_ENHMETAFILE:
    case OBJ_ENHMETADC:
        return "metafile";
    default:
        return nullptr;
    }
}

bool isIcon(HICON icon) {
    ICONINFO info = {};
    if (!GetIconInfo(icon, &info))
        return false;
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    return true;
}

bool isWindowHere(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

// Handles of user objects may be named by their low word alone. occupied: also for objects of other
// processes.
const char* userKind(unsigned lowWord, bool& occupied) {
    const auto handle = reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(lowWord));
    occupied = true;
    if (IsWindow(static_cast<HWND>(handle)))
        return isWindowHere(static_cast<HWND>(handle)) ? "window" : nullptr;
    if (IsMenu(static_cast<HMENU>(handle)))
        return "menu";
    if (isIcon(static_cast<HICON>(handle)))
        return "icon";
    if (CopyAcceleratorTableW(static_cast<HACCEL>(handle), nullptr, 0) > 0)
        return "accelerator";
    occupied = false;
    return nullptr;
}

// Filled by the system; grows until it fits. Static, so that taking a census does not change the heap count
// twice.
std::vector<char>& handleBuffer() {
    static std::vector<char> buffer(kFirstHandleBufferBytes);
    return buffer;
}

const SystemHandleList* querySystemHandles() {
    using Query = LONG(WINAPI*)(ULONG, void*, ULONG, ULONG*);
    static const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), "NtQuerySystemInformation")));
    auto& buffer = handleBuffer();
    ULONG needed = 0;
    LONG status = query(kSystemHandleInformation, buffer.data(), static_cast<ULONG>(buffer.size()), &needed);
    while (status == kStatusLengthMismatch) {
        buffer.resize(buffer.size() * 2);
        status = query(kSystemHandleInformation, buffer.data(), static_cast<ULONG>(buffer.size()), &needed);
    }
    return status == 0 ? reinterpret_cast<const SystemHandleList*>(buffer.data()) : nullptr;
}

template <class Action> void forEachHeap(Action action) {
    constexpr DWORD kMaxHeaps = 64;
    HANDLE heaps[kMaxHeaps];
    const DWORD heapCount = std::min(GetProcessHeaps(kMaxHeaps, heaps), kMaxHeaps);
    for (DWORD i = 0; i < heapCount; ++i)
        action(heaps[i]);
}

} // namespace

Census Census::take() {
    Census census;
    // The heap first: the other counters allocate.
    census.countHeaps();
    census.countKernel();
    census.countThreads();
    census.countGdi();
    census.countUser();
    return census;
}

void Census::countGdi() {
    const GdiTableEntry* table = gdiTable();
    if (!table)
        return;
    for (unsigned i = 0; i < kGdiHandles; ++i) {
        if (table[i].kind == 0)
            continue;
        const std::uintptr_t value = (static_cast<std::uintptr_t>(table[i].unique) << 16) | i;
        if (const char* kind = gdiKind(reinterpret_cast<HGDIOBJ>(value)))
            ++m_counts[kind];
    }
}

void Census::countUser() {
    unsigned emptySlots = 0;
    for (unsigned i = kFirstUserHandle; i < kLastUserHandle && emptySlots < kEmptySlotsToEnd; i += 2) {
        bool occupied = false;
        if (const char* kind = userKind(i, occupied))
            ++m_counts[kind];
        emptySlots = occupied ? 0 : emptySlots + 1;
    }
}

void Census::countKernel() {
    const SystemHandleList* list = querySystemHandles();
    if (!list)
        return;
    long found = 0;
    for (ULONG i = 0; i < list->count; ++i)
        found += (&list->first[0])[i].process == GetCurrentProcessId();
    m_counts["kernel handle"] = found;
}

void Census::countThreads() {
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry)) {
        if (entry.th32OwnerProcessID == GetCurrentProcessId())
            ++m_counts["thread"];
    }
    CloseHandle(snapshot);
}

void Census::fillQueueOfFreedBlocks() {
    constexpr int kMoreThanTheQueue = 2048;
    constexpr SIZE_T kSmallBlockBytes = 40;
    forEachHeap([](HANDLE heap) {
        for (int i = 0; i < kMoreThanTheQueue; ++i)
            HeapFree(heap, 0, HeapAlloc(heap, 0, kSmallBlockBytes));
    });
}

void Census::countHeaps() {
    long blocks = 0;
    forEachHeap([&](HANDLE heap) {
        PROCESS_HEAP_ENTRY entry = {};
        HeapLock(heap);
        while (HeapWalk(heap, &entry)) {
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) {
                ++blocks;
                m_heapBytes += entry.cbData;
            }
        }
        HeapUnlock(heap);
    });
    m_counts["heap block"] = blocks;
}

long Census::count(const std::string& kind) const {
    const auto it = m_counts.find(kind);
    return it == m_counts.end() ? 0 : it->second;
}

Census Census::plusGrowth(const Census& from, const Census& to) const {
    Census sum = *this;
    for (const auto& [kind, after] : to.m_counts)
        sum.m_counts[kind] += after - from.count(kind);
    return sum;
}

std::string Census::moreThan(const Census& before, long heapTolerance) const {
    std::map<std::string, long> kinds = m_counts;
    kinds.insert(before.m_counts.begin(), before.m_counts.end());
    std::string text;
    for (const auto& [kind, unused] : kinds) {
        const long more = count(kind) - before.count(kind);
        const bool heap = kind == "heap block";
        const bool tolerated = heap && (heapTolerance < 0 || std::abs(more) <= heapTolerance);
        if (more == 0 || tolerated)
            continue;
        text += (text.empty() ? "" : ", ") + kind + (more > 0 ? " +" : " ") + std::to_string(more);
    }
    return text;
}

} // namespace qvtest
