// What the tests of the meter frame share: a visible frame and a look at its controls and paints.
#pragma once

#include "QVCommonWnd.h"

#include "LeakGuard.h"
#include "ModalScript.h"
#include "SkinnedTest.h"

#include <climits>
#include <memory>
#include <vector>

namespace vuframe_test {

using namespace _qv_commonwnd;
using namespace _qv_commonctrl;
using qvtest::Picture;

inline constexpr int kFirstOutput = 4; // slots of the meters
inline constexpr int kFirstTrack = 12;

// The frame with a count of its paints; what the framework calls is open to the test.
class TestFrame : public CQVVUFrame {
  public:
    TestFrame() {
        CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(CS_DBLCLKS), L"Meters",
                 WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME, 10, 10, 400, 380, nullptr, nullptr);
        ShowWindow(SW_SHOWNA);
        Paint();
    }

    void Paint() { RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); }

    using CQVVUFrame::OnTimer;
    int paints = 0;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        paints += message == WM_PAINT;
        return CQVVUFrame::WindowProc(message, wParam, lParam);
    }
};

class VUFrame : public qvtest::SkinnedTest {
  protected:
    using Meter = _qv_extractrl::CQVVUTableCtrl;

    // Meters and buttons from left to right; only those that are shown.
    template <class Control> static std::vector<Control*> Shown(const CWnd& frame) {
        std::vector<Control*> shown;
        for (CWnd* child = frame.GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT)) {
            auto* control = dynamic_cast<Control*>(CWnd::FromHandlePermanent(child->m_hWnd));
            if (control && (control->GetStyle() & WS_VISIBLE))
                shown.push_back(control);
        }
        std::sort(shown.begin(), shown.end(), [&](const CWnd* a, const CWnd* b) {
            return Place(frame, *a).left < Place(frame, *b).left;
        });
        return shown;
    }

    static CRect Place(const CWnd& frame, const CWnd& child) {
        CRect rect;
        child.GetWindowRect(&rect);
        frame.ScreenToClient(&rect);
        return rect;
    }

    static std::vector<int> Levels(const CWnd& frame) {
        std::vector<int> levels;
        for (const Meter* meter : Shown<Meter>(frame))
            levels.push_back(meter->GetPos());
        return levels;
    }

    // Levels for all groups, each as the channel's number.
    static std::vector<int> Counting(int count) {
        std::vector<int> levels;
        for (int i = 0; i < count; ++i)
            levels.push_back(i + 1);
        return levels;
    }

    static void Set(CQVVUFrame& frame, int inputs, int tracks, int outputs) {
        std::vector<int> in = Counting(inputs);
        std::vector<int> track = Counting(tracks);
        std::vector<int> out = Counting(outputs);
        frame.SetUVValue(inputs, in.data(), tracks, track.data(), outputs, out.data(), 0, 0);
    }
};

} // namespace vuframe_test
