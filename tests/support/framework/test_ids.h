// Controls and templates of the framework's tests.
#pragma once

#define IDD_FORM 100
#define IDD_HIDDEN 101
#define IDD_BROKEN 102
#define IDC_TEXT 1001
#define IDC_NUMBER 1002
#define IDC_CHECK 1003
#define IDC_RADIO_FIRST 1004
#define IDC_RADIO_SECOND 1005
#define IDC_RADIO_THIRD 1006
#define IDC_COMBO 1007
#define IDC_LIST 1008
#define IDC_GO 1009
#define IDS_QUESTION 200
