#include "ImportPatch.h"

#include <gtest/gtest.h>

#include <cstring>

namespace pathdialog_test {

namespace {

// The place in a loaded module that holds an imported function; null when the module does not import it.
void** FindSlot(HMODULE module, const char* name) {
    auto* const base = reinterpret_cast<BYTE*>(module);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const DWORD imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (const auto* dll = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports); dll->Name;
         ++dll) {
        const auto* named = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + dll->OriginalFirstThunk);
        auto* slot = reinterpret_cast<void**>(base + dll->FirstThunk);
        for (; named->u1.AddressOfData; ++named, ++slot) {
            const auto* const import =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + named->u1.AddressOfData);
            if (!IMAGE_SNAP_BY_ORDINAL(named->u1.Ordinal) && std::strcmp(import->Name, name) == 0)
                return slot;
        }
    }
    return nullptr;
}

} // namespace

ImportPatch::ImportPatch(const wchar_t* module, const char* name, void* replacement) {
    const HMODULE loaded = ::GetModuleHandleW(module);
    m_slot = loaded ? FindSlot(loaded, name) : nullptr;
    EXPECT_NE(nullptr, m_slot) << name;
    if (!m_slot)
        return;
    m_former = *m_slot;
    Write(replacement);
}

ImportPatch::~ImportPatch() {
    if (m_slot)
        Write(m_former);
}

void ImportPatch::Write(void* function) const {
    DWORD former = 0;
    EXPECT_TRUE(::VirtualProtect(m_slot, sizeof *m_slot, PAGE_READWRITE, &former));
    *m_slot = function;
    ::VirtualProtect(m_slot, sizeof *m_slot, former, &former);
}

} // namespace pathdialog_test
