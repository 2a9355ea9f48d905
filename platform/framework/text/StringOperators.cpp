// The operators that join texts to a new CString.
#include "afx/MemoryException.h"
#include "afx/String.h"

#include <climits>
#include <utility>

namespace {

CString Joined(LPCWSTR psz1, int nLength1, LPCWSTR psz2, int nLength2) {
    if (nLength2 > INT_MAX - 1 - nLength1)
        AfxThrowMemoryException();
    CString result;
    LPWSTR const text = result.GetBufferSetLength(nLength1 + nLength2);
    CString::CopyChars(text, psz1, nLength1);
    CString::CopyChars(text + nLength1, psz2, nLength2);
    return result;
}

} // namespace

CString operator+(const CString& str1, const CString& str2) {
    return Joined(str1, str1.GetLength(), str2, str2.GetLength());
}

CString operator+(const CString& str1, LPCWSTR psz2) {
    return Joined(str1, str1.GetLength(), psz2, CString::StringLength(psz2));
}

CString operator+(const CString& str1, WCHAR ch2) {
    return Joined(str1, str1.GetLength(), &ch2, 1);
}

CString operator+(const CString& str1, LPCSTR psz2) {
    return str1 + CString(psz2);
}

CString operator+(LPCWSTR psz1, const CString& str2) {
    return Joined(psz1, CString::StringLength(psz1), str2, str2.GetLength());
}

CString operator+(LPCSTR psz1, const CString& str2) {
    return CString(psz1) + str2;
}

CString operator+(WCHAR ch1, const CString& str2) {
    return Joined(&ch1, 1, str2, str2.GetLength());
}

CString operator+(CString&& str1, const CString& str2) {
    str1 += str2;
    return std::move(str1);
}

CString operator+(CString&& str1, LPCWSTR psz2) {
    str1 += psz2;
    return std::move(str1);
}

CString operator+(CString&& str1, WCHAR ch2) {
    str1 += ch2;
    return std::move(str1);
}
