// Graphics half of afxwin.h: GDI objects, device contexts and menus.
#pragma once

#include "afxgdiobj.h"
#include "afxdc.h"
#include "afxmenu.h"
