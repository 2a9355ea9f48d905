// Entry header: collections by template, CArray, CList, CMap.
//
//     CArray<CRect, const CRect&> strips;
//     strips.Add(CRect(0, 0, 8, 8));
//     for (INT_PTR i = 0; i < strips.GetSize(); ++i)
//         Paint(strips[i]);
//
// TYPE is what is stored, ARG_TYPE how a value is handed in (TYPE, or const TYPE&). Elements are constructed
// and destroyed as C++ objects; values are moved when the storage grows. A value handed in may be an element
// of the same collection. Indexes are zero-based; an index or position out of range throws
// CInvalidArgException*. A collection owns its elements' storage, not what they point to, and belongs to one
// thread at a time.
#pragma once

#include "afx/Array.h"
#include "afx/List.h"
#include "afx/Map.h"
