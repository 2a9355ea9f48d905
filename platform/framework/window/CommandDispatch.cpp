// Calls the handlers of commands and notifications.
#include "MessageCache.h"
#include "afxcmdt_.h"

// Handlers are stored under one common type; the row's shape names the type they are called by.
#pragma GCC diagnostic ignored "-Wcast-function-type"

namespace {

template <class R, class... A> R CallAs(CCmdTarget* target, AFX_PMSG pfn, A... arguments) {
    return (target->*reinterpret_cast<R (CCmdTarget::*)(A...)>(pfn))(arguments...);
}

BOOL CallNotification(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, UINT nID, const AFX_NOTIFY& notify) {
    *notify.pResult = 0;
    switch (entry.nSig) {
    case AfxSigNotify_v:
        CallAs<void>(target, entry.pfn, notify.pNMHDR, notify.pResult);
        return TRUE;
    case AfxSigNotify_b:
        return CallAs<BOOL>(target, entry.pfn, notify.pNMHDR, notify.pResult);
    case AfxSigNotify_RANGE:
        CallAs<void>(target, entry.pfn, nID, notify.pNMHDR, notify.pResult);
        return TRUE;
    case AfxSigNotify_EX:
        return CallAs<BOOL>(target, entry.pfn, nID, notify.pNMHDR, notify.pResult);
    default:
        return FALSE;
    }
}

} // namespace

BOOL AfxDispatchCommand(CCmdTarget* pTarget, const AFX_MSGMAP_ENTRY& entry, UINT nID, void* pExtra) {
    switch (entry.nSig) {
    case AfxSigCmd_v:
        CallAs<void>(pTarget, entry.pfn);
        return TRUE;
    case AfxSigCmd_b:
        return CallAs<BOOL>(pTarget, entry.pfn);
    case AfxSigCmd_RANGE:
        CallAs<void>(pTarget, entry.pfn, nID);
        return TRUE;
    case AfxSigCmd_EX:
        return CallAs<BOOL>(pTarget, entry.pfn, nID);
    default:
        return pExtra && CallNotification(pTarget, entry, nID, *static_cast<const AFX_NOTIFY*>(pExtra));
    }
}
