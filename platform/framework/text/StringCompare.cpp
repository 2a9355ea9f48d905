// CString: comparing, searching, and the operators that join texts.
#include "afxstr.h"
#include "afxtempl.h"

#include <algorithm>
#include <utility>

namespace {

// Folds as the documented comparison does: both sides to lower case, unit by unit.
WCHAR FoldForComparison(WCHAR ch) noexcept {
    if (ch < 0x80)
        return ch >= L'A' && ch <= L'Z' ? static_cast<WCHAR>(ch - L'A' + L'a') : ch;
    ::CharLowerBuffW(&ch, 1);
    return ch;
}

int CollateTexts(LPCWSTR psz1, LPCWSTR psz2, DWORD flags) noexcept {
    const int order = ::CompareStringEx(LOCALE_NAME_USER_DEFAULT, flags, psz1, -1, psz2 ? psz2 : L"", -1,
                                        nullptr, nullptr, 0);
    return order ? order - CSTR_EQUAL : 0;
}

} // namespace

int CString::Compare(LPCWSTR psz) const noexcept {
    return std::wcscmp(m_pszData, psz ? psz : L"");
}

int CString::CompareNoCase(LPCWSTR psz) const noexcept {
    LPCWSTR left = m_pszData;
    LPCWSTR right = psz ? psz : L"";
    for (;; ++left, ++right) {
        if (*left != *right) {
            const int difference = FoldForComparison(*left) - FoldForComparison(*right);
            if (difference != 0)
                return difference;
        }
        if (!*left)
            return 0;
    }
}

int CString::Collate(LPCWSTR psz) const noexcept {
    return CollateTexts(m_pszData, psz, 0);
}

int CString::CollateNoCase(LPCWSTR psz) const noexcept {
    return CollateTexts(m_pszData, psz, NORM_IGNORECASE);
}

int CString::Find(WCHAR ch, int iStart) const noexcept {
    const int length = GetLength();
    if (iStart < 0 || iStart >= length)
        return -1;
    LPCWSTR const found = std::wmemchr(m_pszData + iStart, ch, static_cast<size_t>(length - iStart));
    return found ? static_cast<int>(found - m_pszData) : -1;
}

int CString::Find(LPCWSTR pszSub, int iStart) const noexcept {
    const int length = GetLength();
    if (!pszSub || iStart < 0 || iStart > length)
        return -1;
    LPCWSTR const end = m_pszData + length;
    LPCWSTR const found =
        std::search(static_cast<LPCWSTR>(m_pszData) + iStart, end, pszSub, pszSub + StringLength(pszSub));
    return found != end || !*pszSub ? static_cast<int>(found - m_pszData) : -1;
}

int CString::ReverseFind(WCHAR ch) const noexcept {
    int at = GetLength() - 1;
    while (at >= 0 && m_pszData[at] != ch)
        --at;
    return at;
}

int CString::FindOneOf(LPCWSTR pszCharSet) const noexcept {
    if (!pszCharSet)
        return -1;
    for (int i = 0; i < GetLength(); ++i)
        for (LPCWSTR set = pszCharSet; *set; ++set)
            if (m_pszData[i] == *set)
                return i;
    return -1;
}

CString operator+(const CString& str1, const CString& str2) {
    return CString::Concat(str1, str1.GetLength(), str2, str2.GetLength());
}

CString operator+(const CString& str1, LPCWSTR psz2) {
    return CString::Concat(str1, str1.GetLength(), psz2, CString::StringLength(psz2));
}

CString operator+(const CString& str1, WCHAR ch2) {
    return CString::Concat(str1, str1.GetLength(), &ch2, 1);
}

CString operator+(const CString& str1, LPCSTR psz2) {
    return str1 + CString(psz2);
}

CString operator+(LPCWSTR psz1, const CString& str2) {
    return CString::Concat(psz1, CString::StringLength(psz1), str2, str2.GetLength());
}

CString operator+(LPCSTR psz1, const CString& str2) {
    return CString(psz1) + str2;
}

CString operator+(WCHAR ch1, const CString& str2) {
    return CString::Concat(&ch1, 1, str2, str2.GetLength());
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

UINT AFXAPI AfxHashText(LPCWSTR psz) {
    constexpr UINT kOffset = 2166136261u; // FNV-1a over the units
    constexpr UINT kPrime = 16777619u;
    UINT hash = kOffset;
    for (; psz && *psz; ++psz)
        hash = (hash ^ *psz) * kPrime;
    return hash;
}
