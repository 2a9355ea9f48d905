// Texts of a module's string table, without the limit of a buffer.
#pragma once

#include "afx/String.h"

// The text of one string of hInstance; empty when there is none. The second form takes the string's version
// in one language, the first the one that suits the user.
CString StringOfModule(HINSTANCE hInstance, UINT nID);
CString StringOfModule(HINSTANCE hInstance, UINT nID, WORD wLanguageID);
// The text of the first module in the chain of resource modules that has the string.
CString StringOfChain(UINT nID);
