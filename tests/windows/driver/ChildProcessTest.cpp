#include "ChildProcess.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

using namespace qvtest;

namespace {

std::wstring commandShell() {
    wchar_t path[MAX_PATH] = {};
    GetEnvironmentVariableW(L"ComSpec", path, MAX_PATH);
    return path;
}

TEST(ChildProcess, CollectsOutputAndExitCode) {
    const ChildResult result = runChild(commandShell(), L"/c echo hello&exit 7");
    EXPECT_TRUE(result.ended);
    EXPECT_EQ(7u, result.exitCode);
    EXPECT_EQ("hello\n", result.output);
}

TEST(ChildProcess, GetsFolderAndEnvironment) {
    const TempFolder folder;
    folder.file(L"mark.txt", "here");
    ChildOptions options;
    options.folder = folder.path();
    options.environment[L"QV_CHILD_TEST"] = L"value";
    const ChildResult result = runChild(commandShell(), L"/c type mark.txt&echo %QV_CHILD_TEST%", options);
    EXPECT_EQ("herevalue\n", result.output);
}

TEST(ChildProcess, AbsentProgramAndSlowProgramAreToldApart) {
    EXPECT_FALSE(ChildProcess(L"C:\\none\\absent.exe", L"").started());
    const DWORD start = GetTickCount();
    EXPECT_FALSE(
        runChild(programFolder() + L"\\windows_driver_probe.exe", L"--gtest_filter=*SleepsLong", {}, 300)
            .ended);
    EXPECT_LT(GetTickCount() - start, 5000u);
}

TEST(TempFolder, IsGoneWithEverythingInIt) {
    std::wstring path;
    {
        const TempFolder folder;
        path = folder.path();
        EXPECT_EQ("bytes", readFile(folder.file(L"a\\b\\c.bin", "bytes")));
        EXPECT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(folder.folder(L"d").c_str()));
    }
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(path.c_str()));
}

} // namespace
