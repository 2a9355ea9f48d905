// The package's samples, built where the package was unpacked, run by a user's hands. QV_PACKAGE names that folder.
#include "ChildProcess.h"
#include "Driver.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

using namespace qvtest;

namespace {

constexpr Milliseconds kStartLimit{20000};
constexpr DWORD kExitLimitMs = 15000;
constexpr int kFileName = 1148; // the name box of the system's file dialog

std::wstring program(const wchar_t* name) {
    const wchar_t* package = _wgetenv(L"QV_PACKAGE");
    return (package ? package : L"") + std::wstring(L"\\bin\\") + name;
}

class Samples : public testing::Test {
  protected:
    // The next window of the program in front of the one that is answered.
    HWND waitNext(const ChildProcess& process, HWND former) {
        HWND found = nullptr;
        user.waitFor(
            "a window of the sample",
            [&] {
                const auto windows = findWindows({.process = process.id()});
                found = windows.empty() ? nullptr : windows.front();
                return found && found != former && ::IsWindowVisible(found) && ::IsWindowEnabled(found);
            },
            kStartLimit);
        user.settle();
        return found;
    }

    Driver user;
    TempFolder folder;
};

} // namespace

TEST_F(Samples, TheSmallestHostAsksForAFileAndAQuestion) {
    const std::wstring clip = folder.file(L"clip.avi", "no film");
    ChildProcess host(program(L"QVMinimal.exe"), L"");
    ASSERT_TRUE(host.started());
    const HWND dialog = waitNext(host, nullptr);
    user.waitControl(dialog, kFileName);
    user.type(clip);
    user.enter();
    const HWND question = waitNext(host, dialog);
    EXPECT_EQ(L"Editor", textOf(question));
    user.enter(); // Yes
    const HWND told = waitNext(host, question);
    user.waitDescendant(told, L"Static");
    user.enter();
    ASSERT_TRUE(host.wait(kExitLimitMs));
    // What a program without a message loop of its own ends with: the last message's parameter, here the key.
    EXPECT_EQ(static_cast<DWORD>(VK_RETURN), host.exitCode());
}

TEST_F(Samples, TheGalleryOpensAWindow) {
    ChildProcess gallery(program(L"QVGallery.exe"), L"--lang en-US --samples \"" + folder.path() +
                                                        L"\" --log \"" + folder.path(L"log.txt") + L"\"");
    ASSERT_TRUE(gallery.started());
    const HWND window = waitNext(gallery, nullptr);
    user.waitFor("the list of entries",
                 [&] { return readFile(folder.path(L"log.txt")).find(" string\n") != std::string::npos; });
    const std::string log = readFile(folder.path(L"log.txt"));
    const size_t line = log.rfind("button\t", log.find(" string\n"));
    user.click(window, std::stoi(log.substr(line + std::string("button\t").size())));
    waitNext(gallery, window);
    user.escape();
    user.waitFor("the answer", [&] {
        return readFile(folder.path(L"log.txt")).find("CQVGetStrDlg\tIDCANCEL\n") != std::string::npos;
    });
    waitNext(gallery, nullptr);
    ::PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    ASSERT_TRUE(gallery.wait(kExitLimitMs));
    EXPECT_EQ(0u, gallery.exitCode());
}
