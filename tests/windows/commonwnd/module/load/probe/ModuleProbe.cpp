// Loads the product from the folder of this program, prints what that did to the process, frees it and prints
// again. Lines are "name=value" in UTF-8.
#include <windows.h>

#include <cstdio>
#include <string>

namespace {

std::string Utf8(const std::wstring& text) {
    std::string bytes(text.size() * 3, '\0');
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                           bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

std::wstring PathVariable() {
    std::wstring value(32768, L'\0');
    value.resize(GetEnvironmentVariableW(L"Path", value.data(), static_cast<DWORD>(value.size())));
    return value;
}

std::wstring FileOf(const wchar_t* module) {
    const HMODULE handle = GetModuleHandleW(module);
    if (!handle)
        return L"";
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(handle, path.data(), MAX_PATH));
    return path;
}

void Print(const char* name, const std::wstring& value) {
    std::printf("%s=%s\n", name, Utf8(value).c_str());
}

} // namespace

int main() {
    Print("pathBefore", PathVariable());
    const HMODULE product = LoadLibraryW(L"QVCommonWndU.dll");
    std::printf("loaded=%d\n", product != nullptr);
    Print("colourSpace", FileOf(L"YBColorSpace.dll"));
    Print("path", PathVariable());
    if (product)
        FreeLibrary(product);
    std::printf("productAfter=%d\n", GetModuleHandleW(L"QVCommonWndU.dll") != nullptr);
    std::printf("colourSpaceAfter=%d\n", GetModuleHandleW(L"YBColorSpace.dll") != nullptr);
    Print("pathAfter", PathVariable());
    return 0;
}
