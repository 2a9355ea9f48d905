#include <QVCommonClass.h>
#include <climits>
#include <gtest/gtest.h>
#include <type_traits>

namespace {

using namespace _qv_commonclass;

static_assert(!std::is_copy_constructible_v<CZ5ResHandleManage>);

TEST(State, AnswersTheFormerFigure) {
    EXPECT_EQ(QV_GetState(kStateResourceDirLocked), 0);
    EXPECT_EQ(QV_SetState(kStateResourceDirLocked, 5), 0);
    EXPECT_EQ(QV_SetState(kStateResourceDirLocked, INT_MIN), 5);
    EXPECT_EQ(QV_GetState(kStateResourceDirLocked), INT_MIN);
    EXPECT_EQ(QV_GetState(1), 0);
    QV_SetState(kStateResourceDirLocked, 0);
}

TEST(State, IndexesOutsideAreHarmless) {
    for (const int index : {-1, kStateCount, INT_MIN, INT_MAX}) {
        EXPECT_EQ(QV_SetState(index, 9), 0);
        EXPECT_EQ(QV_GetState(index), 0);
    }
    EXPECT_EQ(QV_SetState(kStateCount - 1, 9), 0);
    EXPECT_EQ(QV_SetState(kStateCount - 1, 0), 9);
}

TEST(ResHandleManage, NestsAndRestores) {
    const HINSTANCE former = AfxGetResourceHandle();
    const HINSTANCE first = GetModuleHandleW(L"kernel32.dll");
    const HINSTANCE second = GetModuleHandleW(L"ntdll.dll");
    {
        CZ5ResHandleManage outer(first);
        EXPECT_EQ(AfxGetResourceHandle(), first);
        {
            CZ5ResHandleManage inner(second);
            EXPECT_EQ(AfxGetResourceHandle(), second);
            CZ5ResHandleManage nothing(nullptr);
            EXPECT_EQ(AfxGetResourceHandle(), second);
        }
        EXPECT_EQ(AfxGetResourceHandle(), first);
    }
    EXPECT_EQ(AfxGetResourceHandle(), former);
}

} // namespace
