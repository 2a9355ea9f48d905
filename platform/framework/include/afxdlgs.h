// Entry header: the system's dialogs.
#pragma once

#include "afxwin.h"
#include "afx/CommonDialog.h"
#include "afx/FileDialog.h"
