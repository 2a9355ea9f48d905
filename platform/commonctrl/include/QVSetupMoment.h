// QVSetupMoment.h: when a control that wears a window can set it up.
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

// Finds the moment when a control can be set up: after WM_CREATE for a window that is being created, with the
// first message for one that exists already and has been subclassed.
class QVSetupMoment {
  public:
    // To be called with each message before it is processed, and with WM_CREATE after it, too. TRUE once.
    bool HasCome(UINT message, bool processed);
    void Reset() { m_phase = Phase::Fresh; }

  private:
    enum class Phase { Fresh, Creating, Done };
    Phase m_phase = Phase::Fresh;
};

} // namespace _qv_commonctrl
