// CCmdTarget: an object that takes commands and notifications through a message map.
#pragma once

#include "MessageMap.h"

// Filled by OnCmdMsg instead of calling the handler, when a caller only asks who would take a command.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    AFX_PMSG pmf;
};

class AFXFRAME_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
  public:
    ~CCmdTarget() override;

    // Routes one command (nCode CN_COMMAND), control notification (nCode: its code) or common-control
    // notification (nCode: MAKELONG(code, WM_NOTIFY), pExtra: AFX_NOTIFY*) to the handler of this object.
    // TRUE when a handler took it. Derived classes add further targets.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

  protected:
    CCmdTarget();
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
    friend class CWnd;
};
