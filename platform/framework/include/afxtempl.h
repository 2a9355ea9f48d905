// Collections by template: CArray, CList, CMap.
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

#include "afxexcept.h"
#include "afxstr.h"
#include <climits>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

// The hash of a key. Integers, enumerations, pointers and texts are covered; specialise it for other key
// types.
AFXFRAME_API UINT AFXAPI AfxHashText(LPCWSTR psz);
template <class ARG_KEY> inline UINT AFXAPI HashKey(ARG_KEY key) {
    if constexpr (std::is_convertible_v<ARG_KEY, LPCWSTR>) {
        return AfxHashText(key);
    } else if constexpr (std::is_pointer_v<ARG_KEY>) {
        constexpr int kAlignmentBits = 4; // heap blocks differ above these only
        return static_cast<UINT>(reinterpret_cast<DWORD_PTR>(key) >> kAlignmentBits);
    } else {
        const unsigned long long value = static_cast<unsigned long long>(key);
        return static_cast<UINT>(value ^ (value >> 32));
    }
}

// TRUE when two keys are the same: overload it where == does not say so.
template <class TYPE, class ARG_TYPE>
inline BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2) {
    return *pElement1 == *pElement2;
}

#include "afxarray.h"
#include "afxlist.h"
#include "afxmap.h"
