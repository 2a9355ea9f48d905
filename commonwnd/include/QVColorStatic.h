#pragma once

#include "QVCommonWndApi.h"

namespace _qv_commonwnd {

// A static control under the library's own run-time class: no fields, no messages, in everything else
// CStatic. Hosts use it to tell the library's labels apart (IsKindOf).
class QVCOMMONWND_API CQVColorStatic : public CStatic {
    DECLARE_DYNAMIC(CQVColorStatic)

  public:
    CQVColorStatic();
    ~CQVColorStatic() override;

  protected:
    DECLARE_MESSAGE_MAP()
};

} // namespace _qv_commonwnd
