// CZ5ResHandleManage: a module as the framework's current resource handle for a scope.
#pragma once

#include <afxwin.h>
#include "QVCommonClassApi.h"

namespace _qv_commonclass {

// Makes a module the framework's current resource handle for the length of a scope, so that templates and
// texts are found in that module first; the destructor restores the handle that was current before.
//
//     INT_PTR CMyDialog::DoModal()
//     {
//         CZ5ResHandleManage resources(g_hMyInstance);
//         return CDialog::DoModal();
//     }
//
// Scopes nest and must end in reverse order of their beginning, on the thread that began them. Not copyable.
class QVCOMMONCLASS_API CZ5ResHandleManage {
  public:
    // hInstance: the module; borrowed, it must stay loaded for the length of the scope. Null changes nothing.
    explicit CZ5ResHandleManage(HINSTANCE hInstance);
    ~CZ5ResHandleManage();
    CZ5ResHandleManage(const CZ5ResHandleManage&) = delete;
    CZ5ResHandleManage& operator=(const CZ5ResHandleManage&) = delete;

  private:
    HINSTANCE m_hFormer;
    BOOL m_bChanged;
};

} // namespace _qv_commonclass
