// Temporary objects of all kinds: what removes them, and what must not.
#include "Census.h"
#include "LeakGuard.h"
#include "PlainWindow.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

constexpr int kPens = 2000;

std::vector<HPEN> MakePens() {
    std::vector<HPEN> pens(kPens);
    for (HPEN& pen : pens)
        pen = ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    return pens;
}

void DeletePens(const std::vector<HPEN>& pens) {
    for (HPEN const pen : pens)
        ::DeleteObject(pen);
}

void Borrow(const std::vector<HPEN>& pens) {
    for (HPEN const pen : pens)
        CPen::FromHandle(pen);
}

long HeapBlocks() {
    return qvtest::Census::take().count("heap block");
}

// Runs a modal loop and does one thing at its first idle moment and another at its second.
class IdleWnd : public CWnd {
  public:
    std::vector<HPEN> pens;
    long blocksBefore = 0;
    long blocksAtSecondIdle = 0;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_KICKIDLE)
            return CWnd::WindowProc(message, wParam, lParam);
        if (lParam == 0) {
            Borrow(pens);
            return TRUE; // again: what was borrowed is removed in between
        }
        blocksAtSecondIdle = HeapBlocks();
        EndModalLoop(IDOK);
        return FALSE;
    }
};

TEST(Temporaries, AModalLoopRemovesWhatWasMadeInIt) {
    IdleWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0));
    wnd.pens = MakePens();
    CPen* const outer = CPen::FromHandle(wnd.pens[0]);
    qvtest::Census::fillQueueOfFreedBlocks();
    wnd.blocksBefore = HeapBlocks();
    EXPECT_EQ(IDOK, wnd.RunModalLoop(MLF_NOIDLEMSG));
    EXPECT_LT(wnd.blocksAtSecondIdle - wnd.blocksBefore, kPens / 4);
    EXPECT_EQ(outer, CPen::FromHandle(wnd.pens[0])) << "the caller of the loop may still hold it";
    EXPECT_EQ(wnd.pens[0], outer->m_hObject);
    CGdiObject::DeleteTempMap();
    DeletePens(wnd.pens);
}

TEST(Temporaries, BorrowingCostsOneObjectAHandle) {
    const std::vector<HPEN> pens = MakePens();
    qvtest::Census::fillQueueOfFreedBlocks();
    const long before = HeapBlocks();
    Borrow(pens);
    const long once = HeapBlocks();
    Borrow(pens);
    EXPECT_GT(once - before, kPens / 2) << "the measure sees the objects";
    EXPECT_EQ(once, HeapBlocks());
    CGdiObject::DeleteTempMap();
    EXPECT_LT(HeapBlocks() - before, kPens / 4);
    DeletePens(pens);
}

TEST(Temporaries, OfAllKindsGoWithTheirThread) {
    PlainWindow window;
    HWND const handle = window.Handle();
    qvtest::expectNoLeak(60, [handle] {
        std::thread([handle] {
            CWnd* const wnd = CWnd::FromHandle(handle);
            CWnd::FromHandle(::GetDesktopWindow());
            wnd->ReleaseDC(wnd->GetDC());
            CMenu::FromHandle(::GetSystemMenu(handle, FALSE));
            CGdiObject::FromHandle(::GetStockObject(WHITE_BRUSH));
        }).join();
    });
}

TEST(Temporaries, ADetachedWindowObjectLivesUntilTheOthersGo) {
    PlainWindow window;
    CWnd* const first = CWnd::FromHandle(window.Handle());
    EXPECT_EQ(window.Handle(), first->Detach());
    EXPECT_EQ(nullptr, first->m_hWnd);
    CWnd* const second = CWnd::FromHandle(window.Handle());
    EXPECT_NE(first, second);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(window.Handle()));
}

} // namespace
