// QVListControls.h: skinned header, list, tree and progress bar: one header each.
#pragma once

#include "QVHeaderCtrl.h"
#include "QVListCtrl.h"
#include "QVProgressCtrl.h"
#include "QVTreeCtrl.h"
