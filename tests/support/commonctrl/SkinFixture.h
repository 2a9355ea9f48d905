// Starts each test in Chinese.
#pragma once

#include "SkinnedTest.h"
#include "StageFolder.h"
#include "TestHost.h"

class SkinFixture : public qvtest::SkinnedTest {
  protected:
    SkinFixture() : SkinnedTest(L"zh-CN") {}

    static std::wstring skinFolder(const wchar_t* name) { return stageFolder() + L"\\skin\\" + name; }
};
