// QVColorStatic.h: a static control under a run-time class of the library.
#pragma once

#include "QVCommonWndApi.h"

namespace _qv_commonwnd {

// A CStatic in everything but its run-time class: no fields, no messages of its own. For hosts; no window of
// the library makes one.
class QVCOMMONWND_API CQVColorStatic : public CStatic {
    DECLARE_DYNAMIC(CQVColorStatic)

  public:
    CQVColorStatic();
    ~CQVColorStatic() override;

  protected:
    DECLARE_MESSAGE_MAP()
};

} // namespace _qv_commonwnd
