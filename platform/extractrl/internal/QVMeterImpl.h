// The inside of a level meter: its state, what of it is on the screen, and the shared strip.
#pragma once

#include "QVVUTableCtrl.h"
#include "internal/QVMeterStrip.h"
#include "rules/QVMeterBallistics.h"

#include <memory>

namespace _qv_extractrl {

class CQVMeterImpl {
  public:
    const QVMeterBallistics& State() const { return m_state; }

    // New client size in pixels; the system repaints the window afterwards.
    void Resize(CSize size);
    // Skin or DPI have changed.
    void ForgetStrip() { m_strip.reset(); }

    // Each changes the state and paints the rows that look different, straight to the window (null: no
    // window).
    void SetLevel(HWND wnd, int level, ULONGLONG nowMs);
    void Reset(HWND wnd);
    // Lets time pass. False when the marks have come to rest.
    bool Tick(HWND wnd, ULONGLONG nowMs);

    // Paints rows to the DC of WM_PAINT.
    void Paint(HWND wnd, HDC dc, const RECT& area);

  private:
    const CQVMeterStrip& Strip(HWND wnd);
    void Show(HWND wnd);

    QVMeterBallistics m_state;
    QVMeterPicture m_shown;
    CSize m_size;
    std::shared_ptr<const CQVMeterStrip> m_strip;
    ULONGLONG m_lastSetMs = 0;
};

} // namespace _qv_extractrl
