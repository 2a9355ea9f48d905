// CProgressCtrl: its range.
#include "afx/ProgressCtrl.h"

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const {
    PBRANGE range = {};
    SendMessage(PBM_GETRANGE, FALSE, reinterpret_cast<LPARAM>(&range));
    nLower = range.iLow;
    nUpper = range.iHigh;
}
