// What hosts do to the meter frame: they derive from it, feed it from handlers, and build without
// optimisation.
#include "VUFrameFixture.h"

#include <algorithm>

using namespace vuframe_test;

namespace {

// A host's frame that gets another face inside the handlers of its own messages.
class FeedingFrame : public TestFrame {
  public:
    int fedBy = 0; // the message in whose handler the next face comes; 0: none

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == static_cast<UINT>(fedBy)) {
            fedBy = 0;
            m_feeds = message;
        }
        return TestFrame::WindowProc(message, wParam, lParam);
    }

    void OnClose() {
        Feed(WM_CLOSE);
        ShowWindow(SW_SHOWNA); // the host's way: the frame stays
    }
    void OnSysCommand(UINT, LPARAM) { Feed(WM_SYSCOMMAND); } // the host knows what it wants with it
    void OnPaint() {
        Feed(WM_PAINT);
        CQVVUFrame::OnPaint();
    }
    DECLARE_MESSAGE_MAP()

  private:
    void Feed(UINT message) {
        if (std::exchange(m_feeds, 0u) != message)
            return;
        int levels[8] = {};
        SetUVValue(2, levels, 3, levels, 8, levels, 0, 0);
    }

    UINT m_feeds = 0;
};

BEGIN_MESSAGE_MAP(FeedingFrame, CQVVUFrame)
    ON_WM_CLOSE()
    ON_WM_SYSCOMMAND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

class HostCode : public VUFrame {};

} // namespace

TEST_F(HostCode, AFaceInsideAHandlerDoesNotRepeatItsMessage) {
    FeedingFrame frame;
    frame.SetAutoClose(TRUE);
    const HWND wnd = frame;
    frame.fedBy = WM_CLOSE;
    frame.SendMessage(WM_CLOSE);
    ASSERT_TRUE(::IsWindow(wnd));
    EXPECT_EQ(13u, Shown<Meter>(frame).size());

    Set(frame, 0, 8, 8);
    frame.ShowWindow(SW_SHOWNA);
    frame.fedBy = WM_SYSCOMMAND;
    frame.SendMessage(WM_SYSCOMMAND, SC_MINIMIZE, 0);
    EXPECT_FALSE(frame.IsIconic());
    EXPECT_EQ(13u, Shown<Meter>(frame).size());

    Set(frame, 0, 8, 8);
    frame.fedBy = WM_PAINT;
    frame.Invalidate(FALSE);
    frame.Paint();
    frame.Paint(); // the new face
    const Picture shot = Picture::ofClient(frame);
    EXPECT_EQ(QV_GetSysColor(QVCLR_PANEL_RAISED), shot.at(60, shot.height() - 12));
}

// Compiled without optimisation: each constant needs an address then.
TEST_F(HostCode, ConstantsCanBeTakenByReference) {
    EXPECT_EQ(4, std::min(100, CQVVUFrame::kMostInputs));
    EXPECT_EQ(95, std::min(100, CQVVUFrame::kMostTracks));
    EXPECT_EQ(8, std::min(100, CQVVUFrame::kMostOutputs));
    int slots[CQVVUFrame::kMostOutputs] = {}; // and are constants all the same
    EXPECT_EQ(8u, std::size(slots));
}
