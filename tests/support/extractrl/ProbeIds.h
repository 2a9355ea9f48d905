// Controls of the probe dialog.
#pragma once

#define IDD_PROBE 101
#define IDC_PLAIN 200
#define IDC_TIMECODE 201
#define IDC_FRAMES 202
#define IDC_NUMBER 203
#define IDC_TRACKER 204
#define IDC_METER 205
