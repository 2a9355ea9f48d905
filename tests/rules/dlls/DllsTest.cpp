// The built DLLs against the picture of who may import whom, and the names that hosts link by.
#include "PeFile.h"

#include "ChildProcess.h"
#include "TempFolder.h"
#include "WindowQuery.h"

#include <gtest/gtest.h>

#include <cxxabi.h>

#include <algorithm>
#include <memory>
#include <set>
#include <sstream>

using namespace qvtest;

namespace {

// Each may import those before it.
const std::vector<std::string> kOrder = {"AfxFrameU.dll",     "QVCommonClassU.dll", "QVCommonCtrlU.dll",
                                         "LWSupportAPIU.dll", "QVExtraCtrlU.dll",   "QVCommonWndU.dll"};

const std::set<std::string> kRunTime = {"libstdc++-6.dll", "libgcc_s_seh-1.dll", "libwinpthread-1.dll"};

const std::set<std::string> kSystem = {
    "advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll",    "imm32.dll",        "kernel32.dll",
    "msimg32.dll",  "msvcrt.dll",   "ole32.dll",    "oleaut32.dll", "shell32.dll",      "shlwapi.dll",
    "user32.dll",   "uxtheme.dll",  "version.dll",  "winmm.dll",    "windowscodecs.dll"};

std::wstring stage() {
    return programFolder() + L"\\..\\..\\stage";
}

std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

bool isOurs(const std::string& name) {
    return std::any_of(kOrder.begin(), kOrder.end(),
                       [&](const auto& it) { return lower(it) == lower(name); });
}

bool isForeign(const std::string& name) {
    return !isOurs(name) && !kRunTime.count(lower(name)) && !kSystem.count(lower(name));
}

PeFile openOurs(const std::string& name) {
    return PeFile(stage() + L"\\bin\\" + toWide(name));
}

class ImportsOf : public ::testing::TestWithParam<size_t> {};

TEST_P(ImportsOf, RunOneWayOnly) {
    const std::string& name = kOrder[GetParam()];
    const PeFile file = openOurs(name);
    ASSERT_TRUE(file.valid()) << name;
    const std::set<std::string> allowed(kOrder.begin(),
                                        kOrder.begin() + static_cast<std::ptrdiff_t>(GetParam()));
    for (const auto& import : file.imports()) {
        EXPECT_TRUE(!isOurs(import) || allowed.count(import)) << name << " imports " << import;
        EXPECT_FALSE(isForeign(import)) << name << " imports " << import;
    }
}

TEST_P(ImportsOf, HasTheUsualProtection) {
    const WORD wanted = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT |
                        IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA;
    const PeFile file = openOurs(kOrder[GetParam()]);
    ASSERT_TRUE(file.valid());
    EXPECT_EQ(wanted, file.characteristics() & wanted);
}

INSTANTIATE_TEST_SUITE_P(Dlls, ImportsOf, ::testing::Range(size_t{0}, kOrder.size()));

// On a customer's machine the product stands on all of these, and finds the colour-space library by itself.
TEST(Imports, ProductStandsOnAllItsLibraries) {
    const PeFile file = openOurs("QVCommonWndU.dll");
    ASSERT_TRUE(file.valid());
    const auto imports = file.imports();
    for (const auto& name : {"AfxFrameU.dll", "QVCommonClassU.dll", "QVCommonCtrlU.dll", "LWSupportAPIU.dll",
                             "QVExtraCtrlU.dll"})
        EXPECT_EQ(1, std::count(imports.begin(), imports.end(), name)) << name;
}

TEST(Imports, ColourSpaceLibraryStandsAlone) {
    const PeFile file(stage() + L"\\CoreDLL\\CPURelease\\x64\\YBColorSpace.dll");
    ASSERT_TRUE(file.valid());
    for (const auto& import : file.imports())
        EXPECT_TRUE(kSystem.count(lower(import)) || kRunTime.count(lower(import))) << import;
    const auto exports = file.exports();
    EXPECT_EQ(1, std::count(exports.begin(), exports.end(), "VMQ_GetAPIStuPtr"));
}

std::string demangled(const std::string& name) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> text(
        abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status), &std::free);
    return text ? std::string(text.get()) : name;
}

// "ns::Class::Method(int) const" -> "ns::Class::Method"; plain C names stay.
std::string qualifiedName(const std::string& name) {
    const std::string full = demangled(name);
    return full.substr(0, full.find('('));
}

std::vector<std::string> wantedExports() {
    std::istringstream lines(readFile(programFolder() + L"\\exports.txt"));
    std::vector<std::string> names;
    for (std::string line; std::getline(lines, line);) {
        line.erase(std::find(line.begin(), line.end(), '\r'), line.end());
        if (!line.empty() && line.front() != '#')
            names.push_back(line);
    }
    return names;
}

TEST(Exports, ProductHasEveryPublishedName) {
    const PeFile file = openOurs("QVCommonWndU.dll");
    ASSERT_TRUE(file.valid());
    std::set<std::string> have;
    for (const auto& name : file.exports())
        have.insert(qualifiedName(name));
    const auto wanted = wantedExports();
    ASSERT_FALSE(wanted.empty());
    for (const auto& name : wanted)
        EXPECT_TRUE(have.count(name)) << "not exported: " << name;
}

TEST(Stage, HasTheRunTimeOfTheToolchain) {
    for (const auto& name : kRunTime)
        EXPECT_TRUE(openOurs(name).valid()) << name;
}

} // namespace
