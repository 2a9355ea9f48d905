// Finds and calls the handlers of commands and notifications.
#include "Dispatch.h"
#include "afx/CmdTarget.h"

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

const AFX_MSGMAP_ENTRY* AfxFindCommandEntry(const AFX_MSGMAP* map, UINT nID, int nCode) {
    const UINT message = HIWORD(nCode) ? HIWORD(nCode) : WM_COMMAND;
    const WORD code = LOWORD(nCode);
    for (; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry)
            if (entry->nMessage == message && static_cast<WORD>(entry->nCode) == code && nID >= entry->nID &&
                nID <= entry->nLastID && entry->nSig < AfxSig_firstWnd)
                return entry;
    return nullptr;
}

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
