#include "QVMeterClock.h"

#include "QVMeterFace.h"

#include <algorithm>

namespace _qv_extractrl {

namespace {

constexpr UINT kTickMs = 40;

} // namespace

CQVMeterClock& CQVMeterClock::Get() {
    static CQVMeterClock clock;
    return clock;
}

CQVMeterClock::~CQVMeterClock() {
    if (m_timer)
        ::KillTimer(nullptr, m_timer);
}

void CQVMeterClock::Add(CQVVUTableCtrl* meter) {
    if (std::find(m_meters.begin(), m_meters.end(), meter) != m_meters.end())
        return;
    m_meters.push_back(meter);
    if (!m_timer)
        m_timer = ::SetTimer(nullptr, 0, kTickMs, &CQVMeterClock::OnTimer);
}

void CQVMeterClock::Remove(CQVVUTableCtrl* meter) {
    std::erase(m_meters, meter);
    StopWhenIdle();
}

void CQVMeterClock::StopWhenIdle() {
    if (m_meters.empty() && m_timer) {
        ::KillTimer(nullptr, m_timer);
        m_timer = 0;
    }
}

void CALLBACK CQVMeterClock::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    Get().Tick();
}

void CQVMeterClock::Tick() {
    const ULONGLONG now = ::GetTickCount64();
    CQVMeterPainter painter(QVMeterRound::ManyMeters);
    std::erase_if(m_meters,
                  [&](CQVVUTableCtrl* meter) { return !meter->m_pFace->Tick(meter->m_hWnd, now, painter); });
    StopWhenIdle();
}

} // namespace _qv_extractrl
