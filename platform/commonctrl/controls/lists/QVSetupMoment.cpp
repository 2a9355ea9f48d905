#include "QVSetupMoment.h"

namespace _qv_commonctrl {

bool QVSetupMoment::HasCome(UINT message, bool processed) {
    if (m_phase == Phase::Done)
        return false;
    if (message == WM_NCCREATE)
        m_phase = Phase::Creating;
    const bool createdNow = m_phase == Phase::Creating && message == WM_CREATE && processed;
    const bool existedBefore = m_phase == Phase::Fresh && message != WM_GETMINMAXINFO &&
                               message != WM_NCDESTROY && message != WM_DESTROY;
    if (!createdNow && !existedBefore)
        return false;
    m_phase = Phase::Done;
    return true;
}

} // namespace _qv_commonctrl
