// CString: a wide text of UTF-16 units that is cheap to copy.
//
//     CString path = L"C:\\media";
//     path += L'\\';
//     CString line;
//     line.Format(L"%s (%d)", static_cast<LPCTSTR>(path), 3);
//
// Sharing, threads, and texts that lie inside the text they change: see SimpleString.h. Positions out of
// range are clamped; what each function returns then is said beside it.
#pragma once

#include "SimpleString.h"
#include <oleauto.h>
#include <cstdarg>

// The widest field and the largest precision that CString::Format writes, in units.
inline constexpr int kAfxMaxFormatField = 1 << 20;

class AFXFRAME_API CString : public CSimpleString {
  public:
    typedef char YCHAR;
    typedef LPSTR PYSTR;
    typedef LPCSTR PCYSTR;

    // ---- Construction. ANSI texts are converted by the system's code page.
    CString() noexcept = default;
    CString(const CString& strSrc) = default;
    CString(CString&& strSrc) noexcept = default;
    // A value made by MAKEINTRESOURCE loads that string resource; a missing one gives the empty text.
    CString(LPCWSTR pszSrc);
    CString(LPCSTR pszSrc);
    CString(const unsigned char* pszSrc);
    // nRepeat copies of ch; zero or less gives the empty text.
    explicit CString(WCHAR ch, int nRepeat = 1);
    explicit CString(char ch, int nRepeat = 1);
    // The first nLength units of pszSrc, which may hold NULs; less than zero gives the empty text.
    CString(LPCWSTR pszSrc, int nLength);
    CString(LPCSTR pszSrc, int nLength);

    // ---- Assignment and appending.
    CString& operator=(const CString& strSrc) = default;
    CString& operator=(CString&& strSrc) noexcept = default;
    CString& operator=(LPCWSTR pszSrc);
    CString& operator=(LPCSTR pszSrc);
    CString& operator=(const unsigned char* pszSrc);
    CString& operator=(WCHAR ch);
    CString& operator=(char ch);
    CString& operator+=(const CString& str) {
        Append(str);
        return *this;
    }
    CString& operator+=(LPCWSTR psz) {
        Append(psz);
        return *this;
    }
    CString& operator+=(LPCSTR psz);
    CString& operator+=(WCHAR ch) {
        AppendChar(ch);
        return *this;
    }
    CString& operator+=(char ch);

    // ---- Comparing, unit by unit up to the first NUL: less than 0, 0, greater than 0. NoCase folds letters
    // as the system does, independent of the locale; Collate uses the user's sorting order.
    int Compare(LPCWSTR psz) const noexcept;
    int CompareNoCase(LPCWSTR psz) const noexcept;
    int Collate(LPCWSTR psz) const noexcept;
    int CollateNoCase(LPCWSTR psz) const noexcept;

    // ---- Pieces. Starts below 0 count as 0, negative counts as 0, beyond the end as the end.
    CString Mid(int iFirst) const;
    CString Mid(int iFirst, int nCount) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;
    CString SpanIncluding(LPCWSTR pszCharSet) const; // longest start that holds only units of the set
    CString SpanExcluding(LPCWSTR pszCharSet) const; // longest start that holds no unit of the set
    // Next piece between delimiters from iStart on, which moves behind it. At the end it returns the empty
    // text and sets iStart to -1. Runs of delimiters count as one. Without delimiters the rest is one piece.
    CString Tokenize(LPCWSTR pszTokens, int& iStart) const;

    // ---- Changing in place. Functions that return CString& return *this.
    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse(); // surrogate pairs stay pairs
    CString& Trim();        // white space, both ends
    CString& Trim(WCHAR chTarget);
    CString& Trim(LPCWSTR pszTargets); // any unit of the set; a null or empty set changes nothing
    CString& TrimLeft();
    CString& TrimLeft(WCHAR chTarget);
    CString& TrimLeft(LPCWSTR pszTargets);
    CString& TrimRight();
    CString& TrimRight(WCHAR chTarget);
    CString& TrimRight(LPCWSTR pszTargets);
    int Replace(WCHAR chOld, WCHAR chNew);       // number of units replaced
    int Replace(LPCWSTR pszOld, LPCWSTR pszNew); // number of places; 0 when pszOld is empty
    int Remove(WCHAR chRemove);                  // number of units removed
    int Insert(int iIndex, WCHAR ch);            // new length; positions are clamped to the text
    int Insert(int iIndex, LPCWSTR psz);
    int Delete(int iIndex, int nCount = 1); // new length; outside the text nothing is deleted

    // ---- Searching: zero-based position, or -1. A start outside the text finds nothing.
    int Find(WCHAR ch, int iStart = 0) const noexcept;
    int Find(LPCWSTR pszSub, int iStart = 0) const noexcept; // an empty pszSub is found at iStart
    int ReverseFind(WCHAR ch) const noexcept;
    int FindOneOf(LPCWSTR pszCharSet) const noexcept;

    // ---- Formatting. %s and %c take wide, %S, %hs and %C narrow arguments; %ls and %ws wide. Sizes hh h l
    // ll I I32 I64 j t z and w; a null text prints "(null)"; %n and unknown letters print themselves. Fields
    // are at most kAfxMaxFormatField wide. A null format gives the empty text.
    void AFX_CDECL Format(LPCWSTR pszFormat, ...);
    void AFX_CDECL Format(UINT nFormatID, ...); // the format is a string resource
    void FormatV(LPCWSTR pszFormat, va_list args);
    void AFX_CDECL AppendFormat(LPCWSTR pszFormat, ...);
    void AFX_CDECL AppendFormat(UINT nFormatID, ...);
    void AppendFormatV(LPCWSTR pszFormat, va_list args);
    // Numbered inserts of the system (%1, %2!d!); an invalid format gives the empty text.
    void AFX_CDECL FormatMessage(LPCWSTR pszFormat, ...);
    void AFX_CDECL FormatMessage(UINT nFormatID, ...);
    void FormatMessageV(LPCWSTR pszFormat, va_list* pArgList);

    // ---- The system. FALSE and no change of the text when there is no such string or variable.
    BOOL LoadString(UINT nID); // from the chain of resource modules
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);
    BOOL GetEnvironmentVariable(LPCWSTR pszVar); // a missing variable empties the text
    BSTR AllocSysString() const;                 // the caller frees it with SysFreeString
    BSTR SetSysString(BSTR* pbstr) const;        // reallocates *pbstr, which stays the caller's

  private:
    void AssignNarrow(LPCSTR psz, int nLength);
};

// Concatenation. The forms that take a temporary on the left append to it.
AFXFRAME_API CString operator+(const CString& str1, const CString& str2);
AFXFRAME_API CString operator+(const CString& str1, LPCWSTR psz2);
AFXFRAME_API CString operator+(const CString& str1, WCHAR ch2);
AFXFRAME_API CString operator+(const CString& str1, LPCSTR psz2);
AFXFRAME_API CString operator+(LPCWSTR psz1, const CString& str2);
AFXFRAME_API CString operator+(LPCSTR psz1, const CString& str2);
AFXFRAME_API CString operator+(WCHAR ch1, const CString& str2);
AFXFRAME_API CString operator+(CString&& str1, const CString& str2);
AFXFRAME_API CString operator+(CString&& str1, LPCWSTR psz2);
AFXFRAME_API CString operator+(CString&& str1, WCHAR ch2);

// Comparison as Compare does.
inline bool operator==(const CString& str1, const CString& str2) noexcept {
    return str1.GetString() == str2.GetString() || str1.Compare(str2) == 0;
}
inline bool operator==(const CString& str1, LPCWSTR psz2) noexcept {
    return str1.Compare(psz2) == 0;
}
inline bool operator==(LPCWSTR psz1, const CString& str2) noexcept {
    return str2.Compare(psz1) == 0;
}
inline bool operator!=(const CString& str1, const CString& str2) noexcept {
    return !(str1 == str2);
}
inline bool operator!=(const CString& str1, LPCWSTR psz2) noexcept {
    return str1.Compare(psz2) != 0;
}
inline bool operator!=(LPCWSTR psz1, const CString& str2) noexcept {
    return str2.Compare(psz1) != 0;
}
inline bool operator<(const CString& str1, const CString& str2) noexcept {
    return str1.Compare(str2) < 0;
}
inline bool operator<(const CString& str1, LPCWSTR psz2) noexcept {
    return str1.Compare(psz2) < 0;
}
inline bool operator<(LPCWSTR psz1, const CString& str2) noexcept {
    return str2.Compare(psz1) > 0;
}
inline bool operator>(const CString& str1, const CString& str2) noexcept {
    return str1.Compare(str2) > 0;
}
inline bool operator>(const CString& str1, LPCWSTR psz2) noexcept {
    return str1.Compare(psz2) > 0;
}
inline bool operator>(LPCWSTR psz1, const CString& str2) noexcept {
    return str2.Compare(psz1) < 0;
}
inline bool operator<=(const CString& str1, const CString& str2) noexcept {
    return str1.Compare(str2) <= 0;
}
inline bool operator<=(const CString& str1, LPCWSTR psz2) noexcept {
    return str1.Compare(psz2) <= 0;
}
inline bool operator<=(LPCWSTR psz1, const CString& str2) noexcept {
    return str2.Compare(psz1) >= 0;
}
inline bool operator>=(const CString& str1, const CString& str2) noexcept {
    return str1.Compare(str2) >= 0;
}
inline bool operator>=(const CString& str1, LPCWSTR psz2) noexcept {
    return str1.Compare(psz2) >= 0;
}
inline bool operator>=(LPCWSTR psz1, const CString& str2) noexcept {
    return str2.Compare(psz1) <= 0;
}
// A single unit compares equal to the text that consists of it.
inline bool operator==(const CString& str1, WCHAR ch2) noexcept {
    return str1.GetLength() == 1 && str1[0] == ch2;
}
inline bool operator==(WCHAR ch1, const CString& str2) noexcept {
    return str2 == ch1;
}
inline bool operator!=(const CString& str1, WCHAR ch2) noexcept {
    return !(str1 == ch2);
}
inline bool operator!=(WCHAR ch1, const CString& str2) noexcept {
    return !(str2 == ch1);
}

typedef CString CStringW;
