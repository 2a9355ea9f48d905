// CCmdTarget: the root of all message maps, and the way of a command to its handler.
#include "Dispatch.h"
#include "afx/CmdTarget.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget() = default;

CCmdTarget::~CCmdTarget() = default;

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY end[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP root = {nullptr, end};
    return &root;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const AFX_MSGMAP_ENTRY* const entry = AfxFindCommandEntry(GetMessageMap(), nID, nCode);
    if (!entry)
        return FALSE;
    if (pHandlerInfo) {
        pHandlerInfo->pTarget = this;
        pHandlerInfo->pmf = entry->pfn;
        return TRUE;
    }
    return AfxDispatchCommand(this, *entry, nID, pExtra);
}
