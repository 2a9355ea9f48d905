// A visible window of the framework for controls under test, with a loop that a ModalScript can stand beside.
#pragma once

#include "Driver.h"

#include <QVCommonCtrl.h>

#include <functional>

class TestHost : public CWnd {
  public:
    static constexpr int kLeft = 200;
    static constexpr int kTop = 150;

    explicit TestHost(int width = 400, int height = 300);
    ~TestHost() override;

    // Works off messages until End.
    void Loop();
    void End() { m_ended = true, PostMessage(WM_NULL); }

    static bool PumpUntil(const std::function<bool()>& condition) { return qvtest::pumpUntil(condition); }
    static void Settle() { qvtest::pumpMessages(); }

    COLORREF ground = RGB(1, 2, 3); // no colour of a skin: what a control leaves unpainted is seen

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    bool m_ended = false;
};
