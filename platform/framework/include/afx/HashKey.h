// How the collections tell keys apart: the hash of a key, and whether two keys are the same.
#pragma once

#include "Definitions.h"
#include <type_traits>

// Integers, enumerations, pointers and texts are covered; specialise it for other key types.
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
