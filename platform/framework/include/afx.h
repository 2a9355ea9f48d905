// Entry header: the root of the class tree, exceptions and diagnostics, without windows.
#pragma once

#include "afx/Diagnostics.h"
#include "afx/Exception.h"
#include "afx/InvalidArgException.h"
#include "afx/MemoryException.h"
#include "afx/Object.h"
#include "afx/ResourceException.h"
#include "afx/UserException.h"
