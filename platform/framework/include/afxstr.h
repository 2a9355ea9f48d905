// CString: a wide text of UTF-16 units that is cheap to copy.
//
//     CString path = L"C:\\media";
//     path += L'\\';
//     CString line;
//     line.Format(L"%s (%d)", static_cast<LPCTSTR>(path), 3);
//
// Copies share one reference-counted buffer; the first change of a shared text makes a private copy. A shared
// buffer may be read and released from several threads; one CString object belongs to one thread at a time.
// Lengths and positions count UTF-16 units and are zero-based. Every operation is safe when its arguments lie
// inside the text it changes (s += s; s = s.Mid(2); s.Format(L"%s!", s.GetString())). A null text pointer is
// an empty text. Positions out of range are clamped; what each function returns then is said beside it.
// Memory that runs out throws CMemoryException* (see afxexcept.h).
#pragma once

#include "afxbase.h"
#include <oleauto.h>
#include <cstdarg>
#include <cwchar>

// The widest field and the largest precision that CString::Format writes, in units.
inline constexpr int kAfxMaxFormatField = 1 << 20;

class AFXFRAME_API CString {
  public:
    typedef WCHAR XCHAR;
    typedef LPWSTR PXSTR;
    typedef LPCWSTR PCXSTR;
    typedef char YCHAR;
    typedef LPSTR PYSTR;
    typedef LPCSTR PCYSTR;

    // ---- Construction. ANSI texts are converted by the system's code page.
    CString() noexcept : m_pszData(s_nil.text) {}
    CString(const CString& strSrc) : m_pszData(Share(strSrc)) {}
    CString(CString&& strSrc) noexcept : m_pszData(strSrc.m_pszData) { strSrc.m_pszData = s_nil.text; }
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
    ~CString() { Release(m_pszData); }

    // ---- Assignment.
    CString& operator=(const CString& strSrc);
    CString& operator=(CString&& strSrc) noexcept;
    CString& operator=(LPCWSTR pszSrc);
    CString& operator=(LPCSTR pszSrc);
    CString& operator=(const unsigned char* pszSrc);
    CString& operator=(WCHAR ch);
    CString& operator=(char ch);
    void SetString(LPCWSTR pszSrc);
    void SetString(LPCWSTR pszSrc, int nLength); // may lie inside this text

    // ---- The text and its length.
    int GetLength() const noexcept { return Head(m_pszData)->length; }
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    void Empty() noexcept; // makes the text empty and gives its memory back
    LPCWSTR GetString() const noexcept { return m_pszData; }
    operator LPCWSTR() const noexcept { return m_pszData; }
    // The unit at iChar; 0 when iChar is not in 0..GetLength(). Position GetLength() gives the terminator.
    WCHAR GetAt(int iChar) const noexcept;
    WCHAR operator[](int iChar) const noexcept { return GetAt(iChar); }
    void SetAt(int iChar, WCHAR ch); // no change when iChar is not in 0..GetLength()-1

    // ---- Direct access. The pointer is valid until the next call that changes the object.
    LPWSTR GetBuffer();                      // writable, GetLength() units and a terminator
    LPWSTR GetBuffer(int nMinBufferLength);  // writable, room for at least so many units and a terminator
    LPWSTR GetBufferSetLength(int nLength);  // the same, and the length becomes nLength
    void ReleaseBuffer(int nNewLength = -1); // -1: up to the first NUL; larger than the room: the room
    void ReleaseBufferSetLength(int nNewLength) { ReleaseBuffer(nNewLength < 0 ? 0 : nNewLength); }
    int GetAllocLength() const noexcept { return Head(m_pszData)->capacity; }
    void Preallocate(int nLength); // room for nLength units, the text stays
    void FreeExtra();              // gives room beyond the text back
    void Truncate(int nNewLength); // shortens; no change when the text is not longer
    LPWSTR LockBuffer(); // like GetBuffer; until UnlockBuffer copies of the object do not share its buffer
    void UnlockBuffer() noexcept;

    // ---- Appending.
    CString& operator+=(const CString& str);
    CString& operator+=(LPCWSTR psz);
    CString& operator+=(LPCSTR psz);
    CString& operator+=(WCHAR ch) {
        Header* const head = Head(m_pszData);
        if (__atomic_load_n(&head->refs, __ATOMIC_ACQUIRE) != 1 || head->length >= head->capacity) {
            Append(&ch, 1);
            return *this;
        }
        m_pszData[head->length] = ch;
        m_pszData[++head->length] = L'\0';
        return *this;
    }
    CString& operator+=(char ch);
    void Append(LPCWSTR psz);
    void Append(LPCWSTR psz, int nLength); // may lie inside this text
    void Append(const CString& str) { *this += str; }
    void AppendChar(WCHAR ch) { *this += ch; }

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

    // ---- Helpers of the documented interface.
    static int StringLength(LPCWSTR psz) noexcept; // 0 for null
    static int StringLength(LPCSTR psz) noexcept;
    static void CopyChars(LPWSTR pchDest, LPCWSTR pchSrc, int nChars) noexcept;
    static void CopyCharsOverlapped(LPWSTR pchDest, LPCWSTR pchSrc, int nChars) noexcept;

    // Joins two texts into a new one.
    static CString Concat(LPCWSTR psz1, int nLength1, LPCWSTR psz2, int nLength2);

  private:
    // What stands before the units of each buffer. refs: number of owners; kForever for the shared empty
    // text; kLocked for a buffer that copies must not share.
    struct Header {
        long refs;
        int length;
        int capacity;
        int reserved;
    };
    struct Nil {
        Header head;
        WCHAR text[2];
    };
    static constexpr long kForever = -1;
    static constexpr long kLocked = -2;
    static Nil s_nil;

    static Header* Head(LPCWSTR psz) noexcept {
        return reinterpret_cast<Header*>(const_cast<LPWSTR>(psz)) - 1;
    }
    static LPWSTR Share(const CString& strSrc) {
        Header* const head = Head(strSrc.m_pszData);
        const long refs = __atomic_load_n(&head->refs, __ATOMIC_RELAXED);
        if (refs == kLocked)
            return Clone(strSrc.m_pszData);
        if (refs != kForever)
            __atomic_fetch_add(&head->refs, 1, __ATOMIC_RELAXED);
        return strSrc.m_pszData;
    }
    static void Release(LPWSTR psz) noexcept {
        Header* const head = Head(psz);
        const long refs = __atomic_load_n(&head->refs, __ATOMIC_ACQUIRE);
        if (refs == kForever)
            return;
        if (refs <= 1 || __atomic_sub_fetch(&head->refs, 1, __ATOMIC_ACQ_REL) == 0)
            Free(head);
    }
    static LPWSTR Clone(LPCWSTR psz);
    static void Free(Header* head) noexcept;
    static LPWSTR Allocate(int nCapacity);
    static int GrownCapacity(int nOld, int nNeeded) noexcept;
    void Grow(int nCapacity);

    bool IsShared() const noexcept;
    void Reserve(int nCapacity); // private buffer with at least this room, text kept
    void SetLengthUnchecked(int nLength) noexcept;
    void Adopt(CString& strOther) noexcept; // takes the other's buffer, unless this one is locked
    void AssignNarrow(LPCSTR psz, int nLength);
    void Splice(int iIndex, int nRemoved, LPCWSTR psz, int nInserted);
    CString& KeepRange(int iFirst, int iEnd);
    template <class Fold> CString& MapUnits(Fold fold);

    LPWSTR m_pszData;
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
