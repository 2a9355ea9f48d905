#pragma once

#include "PsdBuilder.h"

namespace psdtest {

// A document that has one of everything: groups in groups, masks, blocks before and after the name.
Document everything();

} // namespace psdtest
