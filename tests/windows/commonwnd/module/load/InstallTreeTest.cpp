// The product loaded by a real process from made-up installations: where the colour-space library is found,
// and what becomes of the process's Path.
#include "ChildProcess.h"
#include "TempFolder.h"
#include "WindowQuery.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <map>
#include <memory>
#include <sstream>

namespace {

using qvtest::TempFolder;

constexpr const wchar_t* kDlls[] = {L"AfxFrameU.dll",     L"QVCommonClassU.dll", L"QVCommonCtrlU.dll",
                                    L"LWSupportAPIU.dll", L"QVExtraCtrlU.dll",   L"QVCommonWndU.dll",
                                    L"libstdc++-6.dll",   L"libgcc_s_seh-1.dll", L"libwinpthread-1.dll"};

std::wstring BuiltFile(const std::wstring& name) {
    return qvtest::programFolder() + L"\\windows_commonwnd_module_load_" + name;
}

std::wstring StagedFile(const std::wstring& relative) {
    return qvtest::programFolder() + L"\\..\\..\\stage\\" + relative;
}

// An installation "App" with the probe as the host in App\bin.
class InstallTree : public testing::Test {
  protected:
    void SetUp() override {
        Put(BuiltFile(L"probe.exe"), L"App\\bin\\probe.exe");
        for (const wchar_t* dll : kDlls)
            Put(StagedFile(std::wstring(L"bin\\") + dll), std::wstring(L"App\\bin\\") + dll);
    }

    void Put(const std::wstring& from, const std::wstring& relative) {
        m_root.file(relative);
        ASSERT_TRUE(CopyFileW(from.c_str(), m_root.path(relative).c_str(), FALSE)) << qvtest::toUtf8(from);
    }

    void PutColourSpace(const std::wstring& folder) {
        Put(StagedFile(L"CoreDLL\\CPURelease\\x64\\YBColorSpace.dll"), folder + L"\\YBColorSpace.dll");
    }

    // Runs the host; what it printed stands in m_said.
    void Run(const std::wstring& path = L"C:\\windows\\system32;C:\\windows") {
        qvtest::ChildOptions options;
        options.folder = m_root.path();
        options.environment = {{L"Path", path}, {L"WINEPATH", L""}};
        const auto result = qvtest::runChild(m_root.path(L"App\\bin\\probe.exe"), L"", options);
        ASSERT_TRUE(result.ended);
        ASSERT_EQ(0u, result.exitCode) << result.output;
        std::istringstream lines(result.output);
        for (std::string line; std::getline(lines, line);)
            if (const std::size_t equals = line.find('='); equals != std::string::npos)
                m_said[line.substr(0, equals)] = qvtest::toWide(line.substr(equals + 1));
        EXPECT_EQ(L"1", m_said["loaded"]);
        EXPECT_EQ(L"0", m_said["productAfter"]);
        EXPECT_EQ(L"0", m_said["colourSpaceAfter"]);
        EXPECT_EQ(m_said["path"], m_said["pathAfter"]);
    }

    std::wstring CoreEntries(const std::wstring& base) const {
        const std::wstring core = m_root.path(base) + L"\\CoreDLL";
        return core + L";" + core + L"\\CPURelease\\x64;";
    }

    // Expects the colour-space library to have come from a folder of the tree; empty: from nowhere.
    void ExpectColourSpaceFrom(const std::wstring& folder) {
        const std::wstring expected = folder.empty() ? L"" : m_root.path(folder) + L"\\YBColorSpace.dll";
        EXPECT_EQ(0, _wcsicmp(expected.c_str(), m_said["colourSpace"].c_str()))
            << qvtest::toUtf8(m_said["colourSpace"]);
    }

    TempFolder m_root;
    std::map<std::string, std::wstring> m_said;
};

TEST_F(InstallTree, FoundBesideTheHostLeavesPathAlone) {
    PutColourSpace(L"App\\bin");
    PutColourSpace(L"App\\CoreDLL\\CPURelease\\x64");
    Run();
    ExpectColourSpaceFrom(L"App\\bin");
    EXPECT_EQ(m_said["pathBefore"], m_said["path"]);
}

TEST_F(InstallTree, FoundInCoreFolderBesideTheHostsFolder) {
    PutColourSpace(L"App\\CoreDLL\\CPURelease\\x64");
    Run();
    ExpectColourSpaceFrom(L"App\\CoreDLL\\CPURelease\\x64");
    EXPECT_EQ(m_said["pathBefore"] + L";" + CoreEntries(L"App"), m_said["path"]);
}

TEST_F(InstallTree, FoundInTheCoreFolderItself) {
    PutColourSpace(L"App\\CoreDLL");
    Run();
    ExpectColourSpaceFrom(L"App\\CoreDLL");
}

TEST_F(InstallTree, FoundInASiblingFolder) {
    PutColourSpace(L"App\\Engine\\CoreDLL\\CPURelease\\x64");
    Run();
    ExpectColourSpaceFrom(L"App\\Engine\\CoreDLL\\CPURelease\\x64");
    EXPECT_EQ(m_said["pathBefore"] + L";" + CoreEntries(L"App\\Engine"), m_said["path"]);
}

TEST_F(InstallTree, NotFoundAtAll) {
    Run();
    ExpectColourSpaceFrom(L"");
    EXPECT_EQ(m_said["pathBefore"], m_said["path"]);
}

TEST_F(InstallTree, CoreIsAFileNotAFolder) {
    m_root.file(L"App\\CoreDLL", "no folder");
    Run();
    EXPECT_EQ(m_said["pathBefore"], m_said["path"]);
}

TEST_F(InstallTree, EmptyCoreFolderStillExtendsPath) {
    m_root.folder(L"App\\CoreDLL");
    Run();
    ExpectColourSpaceFrom(L"");
    EXPECT_EQ(m_said["pathBefore"] + L";" + CoreEntries(L"App"), m_said["path"]);
}

TEST_F(InstallTree, PathThatHoldsTheEntriesGetsASemicolonOnly) {
    m_root.folder(L"App\\CoreDLL");
    Run(CoreEntries(L"App") + L"C:\\windows");
    EXPECT_EQ(CoreEntries(L"App") + L"C:\\windows;", m_said["path"]);
}

TEST_F(InstallTree, PathThatLeadsToTheLibraryIsLeftAlone) {
    PutColourSpace(L"App\\CoreDLL\\CPURelease\\x64");
    Run(CoreEntries(L"App") + L"C:\\windows");
    ExpectColourSpaceFrom(L"App\\CoreDLL\\CPURelease\\x64");
    EXPECT_EQ(m_said["pathBefore"], m_said["path"]);
}

TEST_F(InstallTree, OverlongPathIsReplaced) {
    PutColourSpace(L"App\\CoreDLL\\CPURelease\\x64");
    Run(L"C:\\" + std::wstring(4093, L'x'));
    ASSERT_EQ(4096u, m_said["pathBefore"].size());
    ExpectColourSpaceFrom(L"App\\CoreDLL\\CPURelease\\x64");
    EXPECT_EQ(L";" + CoreEntries(L"App"), m_said["path"]);
}

TEST_F(InstallTree, LongestPathThatFitsIsKept) {
    PutColourSpace(L"App\\CoreDLL\\CPURelease\\x64");
    Run(L"C:\\" + std::wstring(4092, L'x'));
    ASSERT_EQ(4095u, m_said["pathBefore"].size());
    EXPECT_EQ(m_said["pathBefore"] + L";" + CoreEntries(L"App"), m_said["path"]);
}

TEST_F(InstallTree, LibraryWithoutTheEntryIsFreed) {
    Put(BuiltFile(L"noentry.dll"), L"App\\bin\\YBColorSpace.dll");
    Run();
    ExpectColourSpaceFrom(L"");
}

TEST_F(InstallTree, LibraryThatAnswersNullIsFreed) {
    Put(BuiltFile(L"nullentry.dll"), L"App\\bin\\YBColorSpace.dll");
    Run();
    ExpectColourSpaceFrom(L"");
}

TEST_F(InstallTree, FaultyLibraryBesideTheHostHidesTheGoodOne) {
    // The system loads by name and finds the faulty one again on every try.
    Put(BuiltFile(L"nullentry.dll"), L"App\\bin\\YBColorSpace.dll");
    PutColourSpace(L"App\\CoreDLL\\CPURelease\\x64");
    Run();
    ExpectColourSpaceFrom(L"");
    EXPECT_EQ(m_said["pathBefore"] + L";" + CoreEntries(L"App"), m_said["path"]);
}

} // namespace
