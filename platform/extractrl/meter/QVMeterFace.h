// The face of a level meter: its state, what of it is on the screen, and the strip of pixels it is copied
// from.
#pragma once

#include "QVVUTableCtrl.h"
#include "QVMeterPainter.h"
#include "QVMeterStrip.h"
#include "QVMeterBallistics.h"

#include <memory>

namespace _qv_extractrl {

class CQVMeterFace {
  public:
    const QVMeterBallistics& State() const { return m_state; }

    // New client size in pixels; the system repaints the window afterwards.
    void Resize(CSize size);
    // Skin or DPI have changed.
    void ForgetStrip() { m_strip.reset(); }

    // Each changes the state and has the painter paint the rows that look different (null: no window).
    void SetLevel(HWND wnd, int level, ULONGLONG nowMs, CQVMeterPainter& painter);
    void Reset(HWND wnd, CQVMeterPainter& painter);
    // Lets time pass. False when the marks have come to rest.
    bool Tick(HWND wnd, ULONGLONG nowMs, CQVMeterPainter& painter);

    // Paints rows to the DC of WM_PAINT.
    void Paint(HWND wnd, HDC dc, const RECT& area);

  private:
    const CQVMeterStrip& Strip(HWND wnd);
    void Show(HWND wnd, CQVMeterPainter& painter);

    QVMeterBallistics m_state;
    QVMeterPicture m_shown;
    CSize m_size;
    std::shared_ptr<const CQVMeterStrip> m_strip;
    ULONGLONG m_lastSetMs = 0;
};

} // namespace _qv_extractrl
