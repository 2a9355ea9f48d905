// QVDict.h: the dictionary. One UTF-8 file per language in the folder `lang`, each line `KEY = text`.
// User-interface thread.
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

// Turns a default text of a dialog template into the text to show. The result need only be valid until the
// next call; null stands for "leave as it is".
typedef const wchar_t* (*QVDictCallBack)(const wchar_t* text);

// The text of a key in the current language; else in en-US; else the key itself, so that a missing text is
// seen. Keys are case-sensitive ASCII identifiers. Null or empty gives an empty string.
QVCOMMONCTRL_API CString QV_LoadSysString(LPCWSTR key);

// While a call-back is set, CQVDialog::OnInitDialog passes the caption and every control text of its template
// through it. Null removes it. Returns the former one.
QVCOMMONCTRL_API QVDictCallBack QV_SetDictCallBack(QVDictCallBack callBack);
QVCOMMONCTRL_API QVDictCallBack QV_GetDictCallBack();

// Chooses the language by its file's base name ("zh-CN", "en-US"). Null or empty: the user's interface
// language when there is a file for it, else en-US. FALSE when there is no such file; the former language
// then stays. Texts of open windows stay until the window is opened again.
QVCOMMONCTRL_API BOOL QV_SetLanguage(LPCWSTR language);
QVCOMMONCTRL_API CString QV_GetLanguage();

// Chooses the folder of the language files (default: `lang` beside the DLL's own folder) and reads them
// again. Null or empty goes back to the default.
QVCOMMONCTRL_API BOOL QV_SetLanguagePath(LPCWSTR folder);

} // namespace _qv_commonctrl
