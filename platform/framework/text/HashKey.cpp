// The hash of a text that is a key of a collection.
#include "afx/HashKey.h"

UINT AFXAPI AfxHashText(LPCWSTR psz) {
    constexpr UINT kOffset = 2166136261u; // FNV-1a over the units
    constexpr UINT kPrime = 16777619u;
    UINT hash = kOffset;
    for (; psz && *psz; ++psz)
        hash = (hash ^ *psz) * kPrime;
    return hash;
}
