// Paints what changes of many meters straight to their window, without WM_PAINT.
#pragma once

#include "QVMeterStrip.h"

namespace _qv_extractrl {

// Many meters side by side are painted through one device context of their parent: to change from one meter's
// own context to the next costs several times what is copied through it. To fetch the parent's does not pay
// for one meter.
enum class QVMeterRound { OneMeter, ManyMeters };

// Made for one round over some meters.
class CQVMeterPainter {
  public:
    explicit CQVMeterPainter(QVMeterRound round) : m_round(round) {}
    ~CQVMeterPainter() { Release(); }
    CQVMeterPainter(const CQVMeterPainter&) = delete;
    CQVMeterPainter& operator=(const CQVMeterPainter&) = delete;

    // Copies rows of a strip to the client area of a meter's window.
    void Paint(HWND meter, const CQVMeterStrip& strip, const QVMeterRuns& runs);

  private:
    bool UseParent(HWND meter, POINT& origin);
    void Release();

    QVMeterRound m_round;
    HWND m_parent = nullptr;
    HDC m_dc = nullptr; // of the parent, its children not cut out
};

} // namespace _qv_extractrl
