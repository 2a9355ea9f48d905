#include "OwnModule.h"

namespace _qv_commonctrl {

namespace {

std::wstring ModulePath() {
    constexpr std::size_t kMostUnits = 32768;
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(GetOwnModule(), path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size() || path.size() >= kMostUnits) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

std::wstring WithoutLastPart(const std::wstring& path) {
    const std::size_t slash = path.find_last_of(L'\\');
    return slash == std::wstring::npos ? std::wstring() : path.substr(0, slash);
}

} // namespace

HINSTANCE GetOwnModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&GetOwnModule), &module);
    return module;
}

std::wstring GetDataFolder(const wchar_t* name) {
    return WithoutLastPart(WithoutLastPart(ModulePath())) + L"\\" + name;
}

void DebugLine(const std::wstring& text) {
    OutputDebugStringW((L"QVCommonCtrlU: " + text + L"\n").c_str());
}

} // namespace _qv_commonctrl
