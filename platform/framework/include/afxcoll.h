// Entry header: arrays of common element types. They are CArray in everything; see afxtempl.h. CStringArray
// owns its texts; CPtrArray and CObArray do not own what their elements point to.
#pragma once

#include "afxtempl.h"
#include "afx/String.h"

class CStringArray : public CArray<CString, const CString&> {};
class CPtrArray : public CArray<void*, void*> {};
class CObArray : public CArray<CObject*, CObject*> {};
class CByteArray : public CArray<BYTE, BYTE> {};
class CWordArray : public CArray<WORD, WORD> {};
class CDWordArray : public CArray<DWORD, DWORD> {};
class CUIntArray : public CArray<UINT, UINT> {};
