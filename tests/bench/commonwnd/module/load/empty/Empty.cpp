// Does nothing, and imports from every DLL that the product imports from.
#include <LWSupportAPI.h>
#include <QVCommonClass.h>
#include <QVDict.h>
#include <QVExtraCtrl.h>
#include <afxwin.h>

#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>
#include <shlwapi.h>

extern "C" __declspec(dllexport) const void* const* Imports();

const void* const* Imports() {
    static const void* const imports[] = {
        reinterpret_cast<const void*>(&AfxGetResourceHandle),
        reinterpret_cast<const void*>(&_qv_commonclass::QV_GetState),
        reinterpret_cast<const void*>(&_qv_commonctrl::QV_LoadSysString),
        reinterpret_cast<const void*>(&LWLoadString),
        reinterpret_cast<const void*>(&_qv_extractrl::QVX_DBToPos),
        reinterpret_cast<const void*>(&GetFocus),
        reinterpret_cast<const void*>(&DeleteObject),
        reinterpret_cast<const void*>(&PathFileExistsW),
    };
    return imports;
}
