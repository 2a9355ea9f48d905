#include "ChildProcess.h"
#include "WindowQuery.h"

#include <gtest/gtest.h>

#include <string>

using namespace qvtest;

namespace {

constexpr DWORD kUndefinedExitCode = 99;

struct Mistake {
    const char* sanitizer;
    const char* name;
};

void PrintTo(const Mistake& mistake, std::ostream* out) {
    *out << mistake.name;
}

class Sanitizer : public ::testing::TestWithParam<Mistake> {};

ChildResult makeMistake(const char* name) {
    return runChild(programFolder() + L"\\windows_sanitizer_probe.exe", toWide(name));
}

TEST_P(Sanitizer, SeesTheMistake) {
    if (std::string(GetParam().sanitizer) != QV_SANITIZER)
        GTEST_SKIP() << "for the build '" << GetParam().sanitizer << "'";
    const ChildResult result = makeMistake(GetParam().name);
    ASSERT_TRUE(result.ended);
    EXPECT_NE(0u, result.exitCode) << result.output;
    if (std::string(QV_SANITIZER) != "undefined")
        return;
    EXPECT_EQ(kUndefinedExitCode, result.exitCode);
    EXPECT_NE(std::string::npos, result.output.find("Probe.cpp:")) << result.output;
}

INSTANTIATE_TEST_SUITE_P(Mistakes, Sanitizer,
                         ::testing::Values(Mistake{"undefined", "overflow"}, Mistake{"undefined", "shift"},
                                           Mistake{"undefined", "index"}, Mistake{"guard", "write-past-end"},
                                           Mistake{"guard", "read-past-end"},
                                           Mistake{"guard", "use-after-delete"},
                                           Mistake{"guard", "delete-twice"}));

TEST(Sanitizer, LetsRightCodePass) {
    EXPECT_EQ(0u, makeMistake("nothing").exitCode);
}

} // namespace
