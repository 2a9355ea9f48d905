// One timer for all meters whose marks still move. It runs only while there are such meters.
#pragma once

#include "QVVUTableCtrl.h"

#include <vector>

namespace _qv_extractrl {

class CQVMeterClock {
  public:
    static CQVMeterClock& Get();

    void Add(CQVVUTableCtrl* meter);
    void Remove(CQVVUTableCtrl* meter);

  private:
    CQVMeterClock() = default;
    ~CQVMeterClock();

    static void CALLBACK OnTimer(HWND wnd, UINT message, UINT_PTR id, DWORD ticks);
    void Tick();
    void StopWhenIdle();

    std::vector<CQVVUTableCtrl*> m_meters;
    UINT_PTR m_timer = 0;
};

} // namespace _qv_extractrl
