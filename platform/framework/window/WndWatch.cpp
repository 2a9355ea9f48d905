// The watches of a thread form a chain, the innermost first.
#include "WndWatch.h"
#include "thread/ThreadState.h"

WndWatch::WndWatch(CWnd* pWnd) : m_pWnd(pWnd), m_pOuter(AfxThreadState::Get().watches) {
    AfxThreadState::Get().watches = this;
}

WndWatch::~WndWatch() {
    AfxThreadState::Get().watches = m_pOuter;
}

void WndWatch::OnDeleted(const CWnd* pWnd) {
    const AfxThreadState* const state = AfxThreadState::GetExisting();
    for (WndWatch* watch = state ? state->watches : nullptr; watch; watch = watch->m_pOuter)
        if (watch->m_pWnd == pWnd)
            watch->m_pWnd = nullptr;
}
