// Makes registry names of any section, item and root names. Texts themselves are stored as they are; what is done to
// them is the registry's own.
#include "profile/RegistryNames.h"

#include "fuzz/FuzzInput.h"

using namespace _qv_commonclass;
using fuzz::Check;

namespace {

std::wstring Decoded(const std::wstring& keyName) {
    std::wstring name;
    for (std::size_t i = 0; i < keyName.size(); ++i) {
        if (keyName[i] != L'%') {
            name += keyName[i];
            continue;
        }
        const std::wstring code = keyName.substr(i, 3);
        Check(code == L"%5C" || code == L"%25");
        name += code == L"%5C" ? L'\\' : L'%';
        i += 2;
    }
    return name;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    const std::wstring units = fuzz::UnitsOf(data, size);
    const wchar_t* const name = units.c_str();
    if (const auto key = registryKeyName(name)) {
        Check(!key->empty() && key->size() <= kRegistryKeyMaxChars);
        Check(key->find(L'\\') == std::wstring::npos);
        Check(Decoded(*key) == name); // no two names are one key
    }
    isRegistryValueName(name);
    constexpr std::size_t kMostRootChars = 400;
    if (const auto root = registryRootPath(name, kMostRootChars)) {
        Check(!root->empty() && root->front() != L'\\' && root->back() != L'\\');
        Check(root->size() <= kMostRootChars && root->find(L"\\\\") == std::wstring::npos);
    }
    return 0;
}
