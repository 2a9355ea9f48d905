// CString: construction, assignment, comparing, pieces, changes, searching, formatting, exchange with the
// system.
#include "afx/String.h"
#include "StringResource.h"
#include "TextFormatter.h"
#include "UnitKind.h"
#include "afx/MemoryException.h"

#include <algorithm>
#include <climits>
#include <utility>

namespace {

constexpr UINT kAnsi = CP_ACP;

int UnitsOfNarrow(LPCSTR psz, int nBytes) {
    return nBytes > 0 ? ::MultiByteToWideChar(kAnsi, 0, psz, nBytes, nullptr, 0) : 0;
}

int CollateTexts(LPCWSTR psz1, LPCWSTR psz2, DWORD flags) noexcept {
    const int order = ::CompareStringEx(LOCALE_NAME_USER_DEFAULT, flags, psz1, -1, psz2 ? psz2 : L"", -1,
                                        nullptr, nullptr, 0);
    return order ? order - CSTR_EQUAL : 0;
}

bool IsIn(LPCWSTR pszSet, WCHAR ch) noexcept {
    for (; *pszSet; ++pszSet)
        if (*pszSet == ch)
            return true;
    return false;
}

int Clamp(int value, int low, int high) noexcept {
    return value < low ? low : value > high ? high : value;
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

// Replaces every unit by what fold answers for it.
template <class Fold> void MapUnits(CString& str, Fold fold) {
    for (int i = 0; i < str.GetLength(); ++i) {
        const WCHAR unit = str.GetString()[i];
        const WCHAR folded = fold(unit);
        if (folded != unit)
            str.SetAt(i, folded);
    }
}

CString& KeepRange(CString& str, int iFirst, int iEnd) {
    if (iFirst >= iEnd && !str.IsEmpty()) {
        str.Empty();
    } else {
        str.Truncate(iEnd);
        str.Delete(0, iFirst);
    }
    return str;
}

BOOL Take(CString& target, CString&& found) {
    if (found.IsEmpty())
        return FALSE;
    target = std::move(found);
    return TRUE;
}

} // namespace

CString::CString(LPCWSTR pszSrc) {
    if (pszSrc && IS_INTRESOURCE(pszSrc))
        LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(pszSrc)));
    else
        SetString(pszSrc);
}

CString::CString(LPCSTR pszSrc) {
    AssignNarrow(pszSrc, StringLength(pszSrc));
}

CString::CString(const unsigned char* pszSrc) : CString(reinterpret_cast<LPCSTR>(pszSrc)) {
}

CString::CString(WCHAR ch, int nRepeat) {
    if (nRepeat > 0)
        std::wmemset(GetBufferSetLength(nRepeat), ch, static_cast<size_t>(nRepeat));
}

CString::CString(char ch, int nRepeat) : CString(CString(&ch, 1).GetAt(0), nRepeat) {
}

CString::CString(LPCWSTR pszSrc, int nLength) : CSimpleString(pszSrc, nLength) {
}

CString::CString(LPCSTR pszSrc, int nLength) {
    AssignNarrow(pszSrc, nLength);
}

CString& CString::operator=(LPCWSTR pszSrc) {
    SetString(pszSrc);
    return *this;
}

CString& CString::operator=(LPCSTR pszSrc) {
    AssignNarrow(pszSrc, StringLength(pszSrc));
    return *this;
}

CString& CString::operator=(const unsigned char* pszSrc) {
    return *this = reinterpret_cast<LPCSTR>(pszSrc);
}

CString& CString::operator=(WCHAR ch) {
    SetString(&ch, 1);
    return *this;
}

CString& CString::operator=(char ch) {
    AssignNarrow(&ch, 1);
    return *this;
}

void CString::AssignNarrow(LPCSTR psz, int nLength) {
    const int units = psz ? UnitsOfNarrow(psz, nLength) : 0;
    CString wide;
    if (units > 0)
        ::MultiByteToWideChar(kAnsi, 0, psz, nLength, wide.GetBufferSetLength(units), units);
    *this = std::move(wide);
}

CString& CString::operator+=(LPCSTR psz) {
    return *this += CString(psz);
}

CString& CString::operator+=(char ch) {
    return *this += CString(ch);
}

int CString::Compare(LPCWSTR psz) const noexcept {
    return std::wcscmp(GetString(), psz ? psz : L"");
}

int CString::CompareNoCase(LPCWSTR psz) const noexcept {
    LPCWSTR left = GetString();
    LPCWSTR right = psz ? psz : L"";
    for (;; ++left, ++right) {
        if (*left != *right) {
            const int difference = LowerCase(*left) - LowerCase(*right);
            if (difference != 0)
                return difference;
        }
        if (!*left)
            return 0;
    }
}

int CString::Collate(LPCWSTR psz) const noexcept {
    return CollateTexts(GetString(), psz, 0);
}

int CString::CollateNoCase(LPCWSTR psz) const noexcept {
    return CollateTexts(GetString(), psz, NORM_IGNORECASE);
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
    return CString(GetString() + first, count);
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
    while (first >= 0 && first < length && IsIn(delimiters, GetString()[first]))
        ++first;
    if (first < 0 || first >= length) {
        iStart = -1;
        return CString();
    }
    int end = first;
    while (end < length && !IsIn(delimiters, GetString()[end]))
        ++end;
    iStart = end < length ? end + 1 : length;
    return Mid(first, end - first);
}

CString& CString::MakeUpper() {
    MapUnits(*this, UpperCase);
    return *this;
}

CString& CString::MakeLower() {
    MapUnits(*this, LowerCase);
    return *this;
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

CString& CString::TrimLeft() {
    return KeepRange(*this, FirstKept(*this, IsSpace), GetLength());
}

CString& CString::TrimRight() {
    return KeepRange(*this, 0, EndKept(*this, IsSpace));
}

CString& CString::Trim() {
    return KeepRange(*this, FirstKept(*this, IsSpace), EndKept(*this, IsSpace));
}

CString& CString::TrimLeft(WCHAR chTarget) {
    return KeepRange(*this, FirstKept(*this, [chTarget](WCHAR ch) { return ch == chTarget; }), GetLength());
}

CString& CString::TrimRight(WCHAR chTarget) {
    return KeepRange(*this, 0, EndKept(*this, [chTarget](WCHAR ch) { return ch == chTarget; }));
}

CString& CString::Trim(WCHAR chTarget) {
    return TrimRight(chTarget).TrimLeft(chTarget);
}

CString& CString::TrimLeft(LPCWSTR pszTargets) {
    if (!pszTargets || !*pszTargets)
        return *this;
    return KeepRange(*this, FirstKept(*this, [pszTargets](WCHAR ch) { return IsIn(pszTargets, ch); }),
                     GetLength());
}

CString& CString::TrimRight(LPCWSTR pszTargets) {
    if (!pszTargets || !*pszTargets)
        return *this;
    return KeepRange(*this, 0, EndKept(*this, [pszTargets](WCHAR ch) { return IsIn(pszTargets, ch); }));
}

CString& CString::Trim(LPCWSTR pszTargets) {
    const CString targets(pszTargets); // may be this text itself
    return TrimRight(targets.GetString()).TrimLeft(targets.GetString());
}

int CString::Replace(WCHAR chOld, WCHAR chNew) {
    int count = 0;
    if (chOld == chNew)
        return count;
    MapUnits(*this, [&count, chOld, chNew](WCHAR ch) {
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
        result.Append(GetString() + from, at - from);
        result.Append(pszNew, newLength);
        from = at + oldLength;
    }
    result.Append(GetString() + from, GetLength() - from);
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
    ReleaseBuffer(kept);
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

int CString::Find(WCHAR ch, int iStart) const noexcept {
    const int length = GetLength();
    if (iStart < 0 || iStart >= length)
        return -1;
    LPCWSTR const found = std::wmemchr(GetString() + iStart, ch, static_cast<size_t>(length - iStart));
    return found ? static_cast<int>(found - GetString()) : -1;
}

int CString::Find(LPCWSTR pszSub, int iStart) const noexcept {
    const int length = GetLength();
    if (!pszSub || iStart < 0 || iStart > length)
        return -1;
    LPCWSTR const end = GetString() + length;
    LPCWSTR const found = std::search(GetString() + iStart, end, pszSub, pszSub + StringLength(pszSub));
    return found != end || !*pszSub ? static_cast<int>(found - GetString()) : -1;
}

int CString::ReverseFind(WCHAR ch) const noexcept {
    int at = GetLength() - 1;
    while (at >= 0 && GetString()[at] != ch)
        --at;
    return at;
}

int CString::FindOneOf(LPCWSTR pszCharSet) const noexcept {
    if (!pszCharSet)
        return -1;
    for (int i = 0; i < GetLength(); ++i)
        for (LPCWSTR set = pszCharSet; *set; ++set)
            if (GetString()[i] == *set)
                return i;
    return -1;
}

void CString::FormatV(LPCWSTR pszFormat, va_list args) {
    CString result; // arguments may lie inside this text
    result.AppendFormatV(pszFormat, args);
    Adopt(result);
}

void CString::AppendFormatV(LPCWSTR pszFormat, va_list args) {
    if (!pszFormat)
        return;
    CString result;
    va_list copy;
    va_copy(copy, args);
    TextFormatter(result).Run(pszFormat, &copy);
    va_end(copy);
    *this += result;
}

void AFX_CDECL CString::Format(LPCWSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

void AFX_CDECL CString::Format(UINT nFormatID, ...) {
    CString format;
    format.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatV(format, args);
    va_end(args);
}

void AFX_CDECL CString::AppendFormat(LPCWSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    AppendFormatV(pszFormat, args);
    va_end(args);
}

void AFX_CDECL CString::AppendFormat(UINT nFormatID, ...) {
    CString format;
    format.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    AppendFormatV(format, args);
    va_end(args);
}

void CString::FormatMessageV(LPCWSTR pszFormat, va_list* pArgList) {
    CString result;
    LPWSTR text = nullptr;
    const DWORD length = pszFormat
                             ? ::FormatMessageW(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER,
                                                pszFormat, 0, 0, reinterpret_cast<LPWSTR>(&text), 0, pArgList)
                             : 0;
    if (text) {
        result.SetString(text, static_cast<int>(length));
        ::LocalFree(text);
    }
    Adopt(result);
}

void AFX_CDECL CString::FormatMessage(LPCWSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    FormatMessageV(pszFormat, &args);
    va_end(args);
}

void AFX_CDECL CString::FormatMessage(UINT nFormatID, ...) {
    CString format;
    format.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatMessageV(format, &args);
    va_end(args);
}

BOOL CString::LoadString(UINT nID) {
    return Take(*this, StringOfChain(nID));
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID) {
    return Take(*this, StringOfModule(hInstance, nID));
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID) {
    return Take(*this, StringOfModule(hInstance, nID, wLanguageID));
}

BOOL CString::GetEnvironmentVariable(LPCWSTR pszVar) {
    const DWORD room = pszVar ? ::GetEnvironmentVariableW(pszVar, nullptr, 0) : 0;
    if (room == 0) {
        Empty();
        return FALSE;
    }
    CString value;
    const DWORD length = ::GetEnvironmentVariableW(pszVar, value.GetBuffer(static_cast<int>(room)), room);
    value.ReleaseBuffer(static_cast<int>(length < room ? length : 0));
    *this = std::move(value);
    return TRUE;
}

BSTR CString::AllocSysString() const {
    BSTR const text = ::SysAllocStringLen(GetString(), static_cast<UINT>(GetLength()));
    if (!text)
        AfxThrowMemoryException();
    return text;
}

BSTR CString::SetSysString(BSTR* pbstr) const {
    if (!pbstr)
        return nullptr;
    if (!::SysReAllocStringLen(pbstr, GetString(), static_cast<UINT>(GetLength())))
        AfxThrowMemoryException();
    return *pbstr;
}
