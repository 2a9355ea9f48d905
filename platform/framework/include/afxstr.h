// Entry header: CString, without windows.
#pragma once

#include "afx/String.h"
