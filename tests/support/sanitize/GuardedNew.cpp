// operator new for test builds: each block ends right before a page that nobody may touch, and a deleted
// block stays out of bounds for good. Writing or reading past the end, using a block after its deletion and
// deleting it twice are faults at once, at the place where they happen. Slow (about 14 microseconds a block)
// and generous with address space, of which there is enough.
#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <new>

namespace {

constexpr std::size_t kPageBytes = 4096;
constexpr std::size_t kLeastAlignment = 16;
constexpr std::size_t kMagic = 0x51564755415244ull;
constexpr unsigned char kFill =
    0xFD; // between the end of the block and the guard page, when alignment leaves room

constexpr std::size_t kDeletedKept =
    2048; // each costs the system an entry in its table of areas, which is limited

// Stands right before the block.
struct Header {
    std::size_t magic;
    std::size_t sizeBytes;
    std::size_t spanBytes; // with the guard page
    unsigned char* base;
};

void* allocate(std::size_t sizeBytes, std::size_t alignment) {
    if (alignment < kLeastAlignment)
        alignment = kLeastAlignment;
    const std::size_t wanted = sizeBytes + sizeof(Header) + alignment;
    if (wanted < sizeBytes)
        return nullptr;
    const std::size_t span = ((wanted + kPageBytes - 1) / kPageBytes + 1) * kPageBytes;
    auto* base =
        static_cast<unsigned char*>(VirtualAlloc(nullptr, span, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    if (!base)
        return nullptr;
    unsigned char* guard = base + span - kPageBytes;
    DWORD former = 0;
    VirtualProtect(guard, kPageBytes, PAGE_NOACCESS, &former);
    const auto last = reinterpret_cast<std::uintptr_t>(guard - sizeBytes);
    auto* block = reinterpret_cast<unsigned char*>(last & ~(static_cast<std::uintptr_t>(alignment) - 1));
    *(reinterpret_cast<Header*>(block) - 1) = {kMagic, sizeBytes, span, base};
    for (unsigned char* it = block + sizeBytes; it < guard; ++it)
        *it = kFill;
    return block;
}

// The addresses of the last deleted blocks, in a ring: the oldest is given back to the system.
void keepDeleted(unsigned char* base) {
    static SRWLOCK lock = SRWLOCK_INIT;
    static unsigned char* ring[kDeletedKept];
    static std::size_t next = 0;
    AcquireSRWLockExclusive(&lock);
    unsigned char* oldest = ring[next];
    ring[next] = base;
    next = (next + 1) % kDeletedKept;
    ReleaseSRWLockExclusive(&lock);
    if (oldest)
        VirtualFree(oldest, 0, MEM_RELEASE);
}

// A block that is not ours, or whose end was written over, traps here; a deleted one has no readable header.
void release(void* pointer) {
    if (!pointer)
        return;
    auto* block = static_cast<unsigned char*>(pointer);
    const Header header = *(reinterpret_cast<Header*>(block) - 1);
    if (header.magic != kMagic)
        __builtin_trap();
    const unsigned char* guard = header.base + header.spanBytes - kPageBytes;
    for (const unsigned char* it = block + header.sizeBytes; it < guard; ++it) {
        if (*it != kFill)
            __builtin_trap();
    }
    VirtualFree(header.base, header.spanBytes, MEM_DECOMMIT);
    keepDeleted(header.base);
}

void* allocateOrThrow(std::size_t sizeBytes, std::size_t alignment) {
    void* block = allocate(sizeBytes ? sizeBytes : 1, alignment);
    if (!block)
        throw std::bad_alloc();
    return block;
}

} // namespace

void* operator new(std::size_t size) {
    return allocateOrThrow(size, kLeastAlignment);
}

void* operator new[](std::size_t size) {
    return allocateOrThrow(size, kLeastAlignment);
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    return allocateOrThrow(size, static_cast<std::size_t>(alignment));
}

void* operator new[](std::size_t size, std::align_val_t alignment) {
    return allocateOrThrow(size, static_cast<std::size_t>(alignment));
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size ? size : 1, kLeastAlignment);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size ? size : 1, kLeastAlignment);
}

void operator delete(void* block) noexcept {
    release(block);
}

void operator delete[](void* block) noexcept {
    release(block);
}

void operator delete(void* block, std::size_t) noexcept {
    release(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    release(block);
}

void operator delete(void* block, std::align_val_t) noexcept {
    release(block);
}

void operator delete[](void* block, std::align_val_t) noexcept {
    release(block);
}

void operator delete(void* block, std::size_t, std::align_val_t) noexcept {
    release(block);
}

void operator delete[](void* block, std::size_t, std::align_val_t) noexcept {
    release(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept {
    release(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept {
    release(block);
}
