// CString: joining, pieces, and changes in place.
#include "afxstr.h"

#include <climits>
#include <utility>

namespace {

bool IsIn(LPCWSTR pszSet, WCHAR ch) noexcept {
    for (; *pszSet; ++pszSet)
        if (*pszSet == ch)
            return true;
    return false;
}

bool IsSpace(WCHAR ch) noexcept {
    WORD type = 0;
    if (ch < 0x80)
        return ch == L' ' || (ch >= L'\t' && ch <= L'\r');
    return ::GetStringTypeW(CT_CTYPE1, &ch, 1, &type) && (type & C1_SPACE) != 0;
}

int Clamp(int value, int low, int high) noexcept {
    return value < low ? low : value > high ? high : value;
}

bool IsHighSurrogate(WCHAR ch) noexcept {
    return ch >= 0xD800 && ch <= 0xDBFF;
}

bool IsLowSurrogate(WCHAR ch) noexcept {
    return ch >= 0xDC00 && ch <= 0xDFFF;
}

// The range that is left when units that satisfy the test are taken off the ends.
template <class Test> int FirstKept(const CString& str, Test isTarget) noexcept {
    int first = 0;
    while (first < str.GetLength() && isTarget(str.GetString()[first]))
        ++first;
    return first;
}

template <class Test> int EndKept(const CString& str, Test isTarget) noexcept {
    int end = str.GetLength();
    while (end > 0 && isTarget(str.GetString()[end - 1]))
        --end;
    return end;
}

} // namespace

// The one place where text is put in or taken out. psz may lie inside this text: a change that would move it
// under the copy goes through a new buffer.
void CString::Splice(int iIndex, int nRemoved, LPCWSTR psz, int nInserted) {
    const int length = GetLength();
    const int tail = length - iIndex - nRemoved;
    if (nInserted > INT_MAX - 1 - (length - nRemoved))
        AfxThrowMemoryException();
    const int newLength = length - nRemoved + nInserted;
    const ULONG_PTR begin = reinterpret_cast<ULONG_PTR>(m_pszData);
    const ULONG_PTR source = reinterpret_cast<ULONG_PTR>(psz);
    const bool isInside = source >= begin && source <= begin + static_cast<size_t>(length) * sizeof(WCHAR);
    const bool isAppend = nRemoved == 0 && tail == 0;
    if (isAppend && !IsShared()) {
        const size_t offset = (source - begin) / sizeof(WCHAR);
        if (newLength > GetAllocLength())
            Grow(GrownCapacity(GetAllocLength(), newLength));
        CopyChars(m_pszData + iIndex, isInside ? m_pszData + offset : psz, nInserted);
        SetLengthUnchecked(newLength);
        return;
    }
    if (IsShared() || newLength > GetAllocLength() || (isInside && nInserted > 0)) {
        CString fresh;
        fresh.GetBuffer(isAppend ? GrownCapacity(GetAllocLength(), newLength) : newLength);
        CopyChars(fresh.m_pszData, m_pszData, iIndex);
        CopyChars(fresh.m_pszData + iIndex, psz, nInserted);
        CopyChars(fresh.m_pszData + iIndex + nInserted, m_pszData + iIndex + nRemoved, tail);
        if (fresh.m_pszData != s_nil.text)
            fresh.SetLengthUnchecked(newLength);
        Adopt(fresh);
        return;
    }
    CopyCharsOverlapped(m_pszData + iIndex + nInserted, m_pszData + iIndex + nRemoved, tail);
    CopyChars(m_pszData + iIndex, psz, nInserted);
    SetLengthUnchecked(newLength);
}

void CString::Adopt(CString& strOther) noexcept {
    if (Head(m_pszData)->refs == kLocked && strOther.m_pszData != s_nil.text)
        Head(strOther.m_pszData)->refs = kLocked;
    std::swap(m_pszData, strOther.m_pszData);
}

CString& CString::operator+=(const CString& str) {
    if (IsEmpty() && Head(m_pszData)->refs == kForever)
        return *this = str;
    Append(str.m_pszData, str.GetLength());
    return *this;
}

CString& CString::operator+=(LPCWSTR psz) {
    Append(psz, StringLength(psz));
    return *this;
}

CString& CString::operator+=(LPCSTR psz) {
    return *this += CString(psz);
}

CString& CString::operator+=(char ch) {
    return *this += CString(ch);
}

void CString::Append(LPCWSTR psz) {
    Append(psz, StringLength(psz));
}

void CString::Append(LPCWSTR psz, int nLength) {
    if (psz && nLength > 0)
        Splice(GetLength(), 0, psz, nLength);
}

CString CString::Concat(LPCWSTR psz1, int nLength1, LPCWSTR psz2, int nLength2) {
    if (nLength2 > INT_MAX - 1 - nLength1)
        AfxThrowMemoryException();
    CString result;
    LPWSTR const text = result.GetBufferSetLength(nLength1 + nLength2);
    CopyChars(text, psz1, nLength1);
    CopyChars(text + nLength1, psz2, nLength2);
    return result;
}

CString CString::Mid(int iFirst) const {
    return Mid(iFirst, GetLength());
}

CString CString::Mid(int iFirst, int nCount) const {
    const int length = GetLength();
    const int first = Clamp(iFirst, 0, length);
    const int count = Clamp(nCount, 0, length - first);
    if (count == length)
        return *this;
    return CString(m_pszData + first, count);
}

CString CString::Left(int nCount) const {
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const {
    const int count = Clamp(nCount, 0, GetLength());
    return Mid(GetLength() - count, count);
}

CString CString::SpanIncluding(LPCWSTR pszCharSet) const {
    if (!pszCharSet)
        return CString();
    return Left(FirstKept(*this, [pszCharSet](WCHAR ch) { return IsIn(pszCharSet, ch); }));
}

CString CString::SpanExcluding(LPCWSTR pszCharSet) const {
    if (!pszCharSet)
        return *this;
    return Left(FirstKept(*this, [pszCharSet](WCHAR ch) { return !IsIn(pszCharSet, ch); }));
}

CString CString::Tokenize(LPCWSTR pszTokens, int& iStart) const {
    const int length = GetLength();
    LPCWSTR const delimiters = pszTokens ? pszTokens : L"";
    int first = iStart;
    while (first >= 0 && first < length && IsIn(delimiters, m_pszData[first]))
        ++first;
    if (first < 0 || first >= length) {
        iStart = -1;
        return CString();
    }
    int end = first;
    while (end < length && !IsIn(delimiters, m_pszData[end]))
        ++end;
    iStart = end < length ? end + 1 : length;
    return Mid(first, end - first);
}

// Units outside ASCII go to the system one by one, so that the length never changes.
template <class Fold> CString& CString::MapUnits(Fold fold) {
    const int length = GetLength();
    for (int i = 0; i < length; ++i) {
        const WCHAR folded = fold(m_pszData[i]);
        if (folded != m_pszData[i])
            SetAt(i, folded);
    }
    return *this;
}

CString& CString::MakeUpper() {
    return MapUnits([](WCHAR ch) {
        if (ch < 0x80)
            return ch >= L'a' && ch <= L'z' ? static_cast<WCHAR>(ch - L'a' + L'A') : ch;
        ::CharUpperBuffW(&ch, 1);
        return ch;
    });
}

CString& CString::MakeLower() {
    return MapUnits([](WCHAR ch) {
        if (ch < 0x80)
            return ch >= L'A' && ch <= L'Z' ? static_cast<WCHAR>(ch - L'A' + L'a') : ch;
        ::CharLowerBuffW(&ch, 1);
        return ch;
    });
}

CString& CString::MakeReverse() {
    if (GetLength() < 2)
        return *this;
    LPWSTR const text = GetBuffer();
    for (int i = 0, j = GetLength() - 1; i < j; ++i, --j)
        std::swap(text[i], text[j]);
    for (int i = 0; i + 1 < GetLength(); ++i) {
        if (!IsLowSurrogate(text[i]) || !IsHighSurrogate(text[i + 1]))
            continue;
        std::swap(text[i], text[i + 1]);
        ++i;
    }
    return *this;
}

CString& CString::KeepRange(int iFirst, int iEnd) {
    const int length = GetLength();
    if (iFirst >= iEnd && length > 0) {
        Empty();
    } else if (iFirst > 0 || iEnd < length) {
        Splice(iEnd, length - iEnd, nullptr, 0);
        Splice(0, iFirst, nullptr, 0);
    }
    return *this;
}

CString& CString::TrimLeft() {
    return KeepRange(FirstKept(*this, IsSpace), GetLength());
}

CString& CString::TrimRight() {
    return KeepRange(0, EndKept(*this, IsSpace));
}

CString& CString::Trim() {
    return KeepRange(FirstKept(*this, IsSpace), EndKept(*this, IsSpace));
}

CString& CString::TrimLeft(WCHAR chTarget) {
    return KeepRange(FirstKept(*this, [chTarget](WCHAR ch) { return ch == chTarget; }), GetLength());
}

CString& CString::TrimRight(WCHAR chTarget) {
    return KeepRange(0, EndKept(*this, [chTarget](WCHAR ch) { return ch == chTarget; }));
}

CString& CString::Trim(WCHAR chTarget) {
    return TrimRight(chTarget).TrimLeft(chTarget);
}

CString& CString::TrimLeft(LPCWSTR pszTargets) {
    if (!pszTargets || !*pszTargets)
        return *this;
    return KeepRange(FirstKept(*this, [pszTargets](WCHAR ch) { return IsIn(pszTargets, ch); }), GetLength());
}

CString& CString::TrimRight(LPCWSTR pszTargets) {
    if (!pszTargets || !*pszTargets)
        return *this;
    return KeepRange(0, EndKept(*this, [pszTargets](WCHAR ch) { return IsIn(pszTargets, ch); }));
}

CString& CString::Trim(LPCWSTR pszTargets) {
    const CString targets(pszTargets); // may be this text itself
    return TrimRight(targets.GetString()).TrimLeft(targets.GetString());
}

int CString::Replace(WCHAR chOld, WCHAR chNew) {
    int count = 0;
    if (chOld == chNew)
        return count;
    MapUnits([&count, chOld, chNew](WCHAR ch) {
        count += ch == chOld ? 1 : 0;
        return ch == chOld ? chNew : ch;
    });
    return count;
}

int CString::Replace(LPCWSTR pszOld, LPCWSTR pszNew) {
    const int oldLength = StringLength(pszOld);
    const int newLength = StringLength(pszNew);
    if (oldLength == 0)
        return 0;
    int count = 0;
    for (int at = Find(pszOld); at >= 0; at = Find(pszOld, at + oldLength))
        ++count;
    if (count == 0)
        return 0;
    const long long total = GetLength() + static_cast<long long>(count) * (newLength - oldLength);
    if (total >= INT_MAX)
        AfxThrowMemoryException();
    CString result;
    result.Preallocate(static_cast<int>(total));
    int from = 0;
    for (int at = Find(pszOld); at >= 0; at = Find(pszOld, from)) {
        result.Append(m_pszData + from, at - from);
        result.Append(pszNew, newLength);
        from = at + oldLength;
    }
    result.Append(m_pszData + from, GetLength() - from);
    Adopt(result);
    return count;
}

int CString::Remove(WCHAR chRemove) {
    const int length = GetLength();
    int kept = Find(chRemove);
    if (kept < 0)
        return 0;
    LPWSTR const text = GetBuffer();
    for (int i = kept; i < length; ++i)
        if (text[i] != chRemove)
            text[kept++] = text[i];
    SetLengthUnchecked(kept);
    return length - kept;
}

int CString::Insert(int iIndex, WCHAR ch) {
    Splice(Clamp(iIndex, 0, GetLength()), 0, &ch, 1);
    return GetLength();
}

int CString::Insert(int iIndex, LPCWSTR psz) {
    const int count = StringLength(psz);
    if (count > 0)
        Splice(Clamp(iIndex, 0, GetLength()), 0, psz, count);
    return GetLength();
}

int CString::Delete(int iIndex, int nCount) {
    const int length = GetLength();
    const int first = Clamp(iIndex, 0, length);
    const int count = Clamp(nCount, 0, length - first);
    if (count > 0)
        Splice(first, count, nullptr, 0);
    return GetLength();
}
