// Figures by which the host tells the common windows how to behave.
#pragma once

#include "QVCommonClassApi.h"

namespace _qv_commonclass {

// A small process-wide table of figures by which the host tells the common windows how to behave.
//
//     QV_SetState(kStateResourceDirLocked, 1); // the user may no longer change the resource directory

// Nonzero: the resource directory is fixed by the host; the path settings hide its field and button.
inline constexpr int kStateResourceDirLocked = 0;

// Indexes 0 to kStateCount - 1 exist; those without a name above are the host's own.
inline constexpr int kStateCount = 32;

// The figure at index; 0 until it is set, and 0 for an index outside the table. Any thread.
QVCOMMONCLASS_API int QV_GetState(int index);

// Sets the figure at index and answers the former one; an index outside the table changes nothing and answers
// 0. Any thread.
QVCOMMONCLASS_API int QV_SetState(int index, int value);

} // namespace _qv_commonclass
