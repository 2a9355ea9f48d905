// Tour.h: what the cases of the tour share: a gallery of their own in each language and skin, and its user.
#pragma once

#include "GallerySession.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gallery {

using Results = std::vector<std::wstring>;

class Tour : public testing::TestWithParam<Look> {
  protected:
    void SetUp() override { m_session = std::make_unique<GallerySession>(GetParam()); }
    void TearDown() override {
        if (m_session) {
            EXPECT_EQ(0u, m_session->close());
        }
    }
    GallerySession& session() { return *m_session; }
    qvtest::Driver& user() { return m_session->user(); }

    std::wstring sample(const std::wstring& name) const { return m_session->samples().path(name); }

  private:
    std::unique_ptr<GallerySession> m_session;
};

inline std::string lookName(const testing::TestParamInfo<Look>& info) {
    std::string name = qvtest::toUtf8(info.param.skin + L"_" + info.param.language);
    name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
    return name;
}

inline auto allLooks() {
    return testing::Values(Look{L"zh-CN", L"dark"}, Look{L"en-US", L"dark"}, Look{L"zh-CN", L"light"},
                           Look{L"en-US", L"light"});
}

} // namespace gallery
