// CSimpleString: the buffer under a CString, and what needs nothing but the buffer.
//
// Copies share one reference-counted buffer; the first change of a shared text makes a private copy. A shared
// buffer may be read and released from several threads; one object belongs to one thread at a time. Lengths
// and positions count UTF-16 units and are zero-based. Every operation is safe when its arguments lie inside
// the text it changes (s.Append(s), s.SetString(s.GetString() + 2)). A null text pointer is an empty text.
// Memory that runs out throws CMemoryException*.
#pragma once

#include "Definitions.h"
#include <cwchar>

class AFXFRAME_API CSimpleString {
  public:
    typedef WCHAR XCHAR;
    typedef LPWSTR PXSTR;
    typedef LPCWSTR PCXSTR;

    CSimpleString() noexcept : m_pszData(s_nil.text) {}
    CSimpleString(const CSimpleString& strSrc) : m_pszData(Share(strSrc)) {}
    CSimpleString(CSimpleString&& strSrc) noexcept : m_pszData(strSrc.m_pszData) {
        strSrc.m_pszData = s_nil.text;
    }
    // The first nLength units of pchSrc, which may hold NULs; less than zero gives the empty text.
    CSimpleString(LPCWSTR pchSrc, int nLength);
    ~CSimpleString() { Release(m_pszData); }
    CSimpleString& operator=(const CSimpleString& strSrc);
    CSimpleString& operator=(CSimpleString&& strSrc) noexcept;
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
    void Append(LPCWSTR psz);
    void Append(LPCWSTR psz, int nLength); // may lie inside this text
    void Append(const CSimpleString& strSrc);
    void AppendChar(WCHAR ch) {
        Header* const head = Head(m_pszData);
        if (__atomic_load_n(&head->refs, __ATOMIC_ACQUIRE) != 1 || head->length >= head->capacity) {
            Append(&ch, 1);
            return;
        }
        m_pszData[head->length] = ch;
        m_pszData[++head->length] = L'\0';
    }

    // ---- Helpers of the documented interface.
    static int StringLength(LPCWSTR psz) noexcept; // 0 for null
    static int StringLength(LPCSTR psz) noexcept;
    static void CopyChars(LPWSTR pchDest, LPCWSTR pchSrc, int nChars) noexcept;
    static void CopyCharsOverlapped(LPWSTR pchDest, LPCWSTR pchSrc, int nChars) noexcept;

  protected:
    // Puts nInserted units of psz, which may lie inside this text, in the place of nRemoved ones at iIndex.
    void Splice(int iIndex, int nRemoved, LPCWSTR psz, int nInserted);
    // Takes the other's buffer; a lock of this text's buffer goes over to it.
    void Adopt(CSimpleString& strOther) noexcept;

  private:
    // What stands before the units of each buffer. refs: number of owners; kForever for the shared empty
    // text; kLocked for a buffer that copies must not share.
    struct Header {
        long refs;
        int length;
        int capacity;
        int reserved; // the units begin at a multiple of the header's alignment
    };
    struct Nil {
        Header head;
        WCHAR text[2];
    };
    enum : long { kForever = -1, kLocked = -2 };
    static Nil s_nil;

    static Header* Head(LPCWSTR psz) noexcept {
        return reinterpret_cast<Header*>(const_cast<LPWSTR>(psz)) - 1;
    }
    static LPWSTR Share(const CSimpleString& strSrc) {
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

    LPWSTR m_pszData;
};
