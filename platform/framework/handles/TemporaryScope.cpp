// Temporary objects of all kinds, those since a moment and all of them.
#include "TemporaryScope.h"
#include "ThreadTemporaries.h"
#include "thread/ThreadState.h"

TemporaryScope::TemporaryScope()
    : m_firstWindow(AfxThreadState::Get().temporaryWindows.NextSerial()),
      m_firstOther(ThreadTemporaries::NextSerial()) {
}

void TemporaryScope::Remove() const {
    AfxThreadState::Get().temporaryWindows.RemoveSince(m_firstWindow);
    ThreadTemporaries::RemoveSince(m_firstOther);
}

void AfxDeleteTempObjects() {
    CWnd::DeleteTempMap();
    CDC::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CMenu::DeleteTempMap();
    CImageList::DeleteTempMap();
}
