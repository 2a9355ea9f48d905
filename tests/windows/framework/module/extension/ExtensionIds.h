// What the extension module of the tests offers.
#pragma once

#define IDD_EXTENSION 4711
#define IDS_EXTENSION 4712
#define IDC_EXTENSION_EDIT 101
#define kExtensionWindowClass L"QvTestExtensionWindow"
