// Ids of the templates and controls of the library; for sources and resource scripts.
#pragma once

#define IDD_MESSAGEBOX 31099
#define IDC_MSGBOX_TEXT 31003
#define IDC_MSGBOX_YES 31095
#define IDC_MSGBOX_NO 31096
#define IDC_MSGBOX_CANCEL 31097
#define IDC_MSGBOX_NOASK 31098
