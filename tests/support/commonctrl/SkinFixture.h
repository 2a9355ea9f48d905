// Starts each test with the shipped dark skin and Chinese, whatever the test before has chosen.
#pragma once

#include "StageFolder.h"
#include "TestHost.h"

#include <gtest/gtest.h>

class SkinFixture : public testing::Test {
  protected:
    void SetUp() override {
        _qv_commonctrl::QV_SetSkinPath(nullptr);
        _qv_commonctrl::QV_SetLanguagePath(nullptr);
        _qv_commonctrl::QV_SetLanguage(L"zh-CN");
    }
    void TearDown() override { SetUp(); }

    static std::wstring skinFolder(const wchar_t* name) { return stageFolder() + L"\\skin\\" + name; }
};
