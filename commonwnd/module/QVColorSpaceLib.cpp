#include "QVColorSpaceLib.h"

#include "CoreLibrarySearch.h"

namespace _qv_commonwnd {

namespace {

constexpr const wchar_t* kSearchFolders[] = {L"CPURelease"};

constexpr CoreLibraryDescription kColorSpace = {
    nullptr, 0, kSearchFolders, 1, L"YBColorSpace", "VMQ_GetAPIStuPtr",
};

} // namespace

CQVColorSpaceLib::CQVColorSpaceLib() : hModule(nullptr), pApi(nullptr) {
    // Runs while the module is loaded: nothing may leave by exception here.
    try {
        ProcessServices services;
        hModule = static_cast<HMODULE>(QV_LoadCoreLibrary(services, nullptr, kColorSpace, pApi));
    } catch (...) {
        hModule = nullptr;
        pApi = nullptr;
    }
}

CQVColorSpaceLib::~CQVColorSpaceLib() {
    if (hModule)
        FreeLibrary(hModule);
}

} // namespace _qv_commonwnd
