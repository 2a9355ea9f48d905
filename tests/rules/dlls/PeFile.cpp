#include "PeFile.h"

#include "TempFolder.h"

PeFile::PeFile(const std::wstring& path) : m_bytes(qvtest::readFile(path)) {
    if (m_bytes.size() < sizeof(IMAGE_DOS_HEADER))
        return;
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(m_bytes.data());
    const auto offset = static_cast<size_t>(dos->e_lfanew);
    if (dos->e_magic != IMAGE_DOS_SIGNATURE || offset + sizeof(IMAGE_NT_HEADERS64) > m_bytes.size())
        return;
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(m_bytes.data() + offset);
    if (headers->Signature == IMAGE_NT_SIGNATURE &&
        headers->OptionalHeader.Magic == IMAGE_NT_OPTIONAL_HDR64_MAGIC)
        m_headers = headers;
}

const char* PeFile::at(DWORD address, size_t size) const {
    const IMAGE_SECTION_HEADER* section = IMAGE_FIRST_SECTION(m_headers);
    for (WORD i = 0; i < m_headers->FileHeader.NumberOfSections; ++i, ++section) {
        if (address < section->VirtualAddress || address - section->VirtualAddress >= section->SizeOfRawData)
            continue;
        const size_t offset = section->PointerToRawData + (address - section->VirtualAddress);
        return offset + size <= m_bytes.size() ? m_bytes.data() + offset : nullptr;
    }
    return nullptr;
}

std::string PeFile::textAt(DWORD address) const {
    const char* first = at(address, 1);
    return first ? std::string(first) : std::string();
}

std::vector<std::string> PeFile::imports() const {
    std::vector<std::string> names;
    DWORD address = directory(IMAGE_DIRECTORY_ENTRY_IMPORT).VirtualAddress;
    while (address) {
        const auto* entry =
            reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(at(address, sizeof(IMAGE_IMPORT_DESCRIPTOR)));
        if (!entry || entry->Name == 0)
            break;
        names.push_back(textAt(entry->Name));
        address += sizeof *entry;
    }
    return names;
}

std::vector<std::string> PeFile::exports() const {
    const DWORD address = directory(IMAGE_DIRECTORY_ENTRY_EXPORT).VirtualAddress;
    const auto* table =
        reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(at(address, sizeof(IMAGE_EXPORT_DIRECTORY)));
    if (!address || !table)
        return {};
    const auto* addresses =
        reinterpret_cast<const DWORD*>(at(table->AddressOfNames, table->NumberOfNames * sizeof(DWORD)));
    std::vector<std::string> names;
    for (DWORD i = 0; addresses && i < table->NumberOfNames; ++i)
        names.push_back(textAt(addresses[i]));
    return names;
}
