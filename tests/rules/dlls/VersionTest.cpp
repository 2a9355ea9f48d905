// The version resources of what is shipped.
#include "ChildProcess.h"
#include "WindowQuery.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace qvtest;

namespace {

class VersionOf : public testing::TestWithParam<const wchar_t*> {
  protected:
    void SetUp() override {
        const std::wstring path = programFolder() + L"\\..\\..\\stage\\" + GetParam();
        DWORD ignored = 0;
        m_bytes.resize(::GetFileVersionInfoSizeW(path.c_str(), &ignored));
        ASSERT_FALSE(m_bytes.empty()) << toUtf8(path);
        ASSERT_TRUE(
            ::GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(m_bytes.size()), m_bytes.data()));
    }

    std::wstring text(const wchar_t* name) {
        const std::wstring entry = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
        wchar_t* value = nullptr;
        UINT units = 0;
        if (!::VerQueryValueW(m_bytes.data(), entry.c_str(), reinterpret_cast<void**>(&value), &units))
            return L"";
        return value;
    }

    std::vector<char> m_bytes;
};

} // namespace

TEST_P(VersionOf, NamesTheFileAndTheProject) {
    const std::wstring path = GetParam();
    const std::wstring name = path.substr(path.rfind(L'\\') + 1);
    EXPECT_EQ(name, text(L"OriginalFilename"));
    EXPECT_EQ(name.substr(0, name.rfind(L'.')), text(L"InternalName"));
    EXPECT_EQ(L"QVCommonWnd", text(L"ProductName"));
    EXPECT_EQ(toWide(QV_VERSION) + L".0", text(L"ProductVersion"));
    EXPECT_EQ(text(L"ProductVersion"), text(L"FileVersion"));
    EXPECT_FALSE(text(L"FileDescription").empty());
    EXPECT_EQ(0u, text(L"LegalCopyright").find(L"Copyright (c) "));
}

TEST_P(VersionOf, SaysTheSameInNumbers) {
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT bytes = 0;
    ASSERT_TRUE(::VerQueryValueW(m_bytes.data(), L"\\", reinterpret_cast<void**>(&fixed), &bytes));
    const std::string numbers = std::to_string(HIWORD(fixed->dwFileVersionMS)) + '.' +
                                std::to_string(LOWORD(fixed->dwFileVersionMS)) + '.' +
                                std::to_string(HIWORD(fixed->dwFileVersionLS));
    EXPECT_EQ(QV_VERSION, numbers);
    const bool isProgram = std::wstring(GetParam()).ends_with(L".exe");
    EXPECT_EQ(static_cast<DWORD>(isProgram ? VFT_APP : VFT_DLL), fixed->dwFileType);
}

INSTANTIATE_TEST_SUITE_P(Shipped, VersionOf,
                         testing::Values(L"bin\\AfxFrameU.dll", L"bin\\QVCommonClassU.dll",
                                         L"bin\\QVCommonCtrlU.dll", L"bin\\LWSupportAPIU.dll",
                                         L"bin\\QVExtraCtrlU.dll", L"bin\\QVCommonWndU.dll",
                                         L"CoreDLL\\CPURelease\\x64\\YBColorSpace.dll", L"bin\\QVGallery.exe",
                                         L"bin\\QVMinimal.exe"));
