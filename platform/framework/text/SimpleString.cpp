// CSimpleString: the shared buffer, its ownership, and the one place where text is put in or taken out.
#include "afx/SimpleString.h"
#include "afx/MemoryException.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace {

void* Had(void* memory) {
    if (!memory)
        AfxThrowMemoryException();
    return memory;
}

} // namespace

// Constant-initialised: strings may be made by static constructors of any module in any order.
constinit CSimpleString::Nil CSimpleString::s_nil = {{CSimpleString::kForever, 0, 0, 0}, {0, 0}};

CSimpleString::CSimpleString(LPCWSTR pchSrc, int nLength) : m_pszData(s_nil.text) {
    if (!pchSrc || nLength <= 0)
        return;
    m_pszData = Allocate(GrownCapacity(0, nLength));
    CopyChars(m_pszData, pchSrc, nLength);
    SetLengthUnchecked(nLength);
}

CSimpleString& CSimpleString::operator=(const CSimpleString& strSrc) {
    if (m_pszData == strSrc.m_pszData)
        return *this;
    if (Head(m_pszData)->refs == kLocked) {
        SetString(strSrc, strSrc.GetLength());
        return *this;
    }
    LPWSTR const shared = Share(strSrc);
    Release(m_pszData);
    m_pszData = shared;
    return *this;
}

CSimpleString& CSimpleString::operator=(CSimpleString&& strSrc) noexcept {
    if (Head(m_pszData)->refs == kLocked)
        SetString(strSrc, strSrc.GetLength());
    else
        std::swap(m_pszData, strSrc.m_pszData);
    return *this;
}

void CSimpleString::SetString(LPCWSTR pszSrc) {
    SetString(pszSrc, StringLength(pszSrc));
}

void CSimpleString::SetString(LPCWSTR pszSrc, int nLength) {
    if (!pszSrc || nLength <= 0) {
        Empty();
        return;
    }
    if (nLength > GetAllocLength() || IsShared()) {
        Splice(0, GetLength(), pszSrc, nLength);
        return;
    }
    CopyCharsOverlapped(m_pszData, pszSrc, nLength); // may be a piece of this text
    SetLengthUnchecked(nLength);
}

void CSimpleString::Empty() noexcept {
    if (Head(m_pszData)->refs == kLocked) {
        SetLengthUnchecked(0);
        return;
    }
    Release(m_pszData);
    m_pszData = s_nil.text;
}

WCHAR CSimpleString::GetAt(int iChar) const noexcept {
    return iChar >= 0 && iChar <= GetLength() ? m_pszData[iChar] : L'\0';
}

void CSimpleString::SetAt(int iChar, WCHAR ch) {
    if (iChar >= 0 && iChar < GetLength())
        GetBuffer()[iChar] = ch;
}

LPWSTR CSimpleString::GetBuffer() {
    return GetBuffer(GetLength());
}

LPWSTR CSimpleString::GetBuffer(int nMinBufferLength) {
    const int length = GetLength();
    Reserve(nMinBufferLength > length ? nMinBufferLength : length);
    return m_pszData;
}

LPWSTR CSimpleString::GetBufferSetLength(int nLength) {
    const int length = nLength > 0 ? nLength : 0;
    GetBuffer(length);
    if (m_pszData != s_nil.text)
        SetLengthUnchecked(length);
    return m_pszData;
}

void CSimpleString::ReleaseBuffer(int nNewLength) {
    if (m_pszData == s_nil.text)
        return;
    const int room = GetAllocLength();
    int length = nNewLength;
    if (length < 0)
        length = static_cast<int>(::wcsnlen(m_pszData, static_cast<size_t>(room)));
    SetLengthUnchecked(length < room ? length : room);
}

void CSimpleString::Preallocate(int nLength) {
    GetBuffer(nLength);
}

void CSimpleString::FreeExtra() {
    const int length = GetLength();
    if (length == GetAllocLength() || Head(m_pszData)->refs == kLocked)
        return;
    CSimpleString exact;
    if (length > 0)
        exact.SetString(m_pszData, length);
    *this = std::move(exact);
}

void CSimpleString::Truncate(int nNewLength) {
    const int length = nNewLength > 0 ? nNewLength : 0;
    if (length >= GetLength())
        return;
    GetBuffer();
    SetLengthUnchecked(length);
}

LPWSTR CSimpleString::LockBuffer() {
    Reserve(GetLength() > 0 ? GetLength() : 1); // the shared empty text cannot be locked
    Head(m_pszData)->refs = kLocked;
    return m_pszData;
}

void CSimpleString::UnlockBuffer() noexcept {
    if (Head(m_pszData)->refs == kLocked)
        Head(m_pszData)->refs = 1;
}

void CSimpleString::Append(LPCWSTR psz) {
    Append(psz, StringLength(psz));
}

void CSimpleString::Append(LPCWSTR psz, int nLength) {
    if (psz && nLength > 0)
        Splice(GetLength(), 0, psz, nLength);
}

void CSimpleString::Append(const CSimpleString& strSrc) {
    if (m_pszData == s_nil.text)
        *this = strSrc;
    else
        Append(strSrc.m_pszData, strSrc.GetLength());
}

// A change that would move psz under the copy goes through a new buffer.
void CSimpleString::Splice(int iIndex, int nRemoved, LPCWSTR psz, int nInserted) {
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
        CSimpleString fresh;
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

void CSimpleString::Adopt(CSimpleString& strOther) noexcept {
    if (Head(m_pszData)->refs == kLocked && strOther.m_pszData != s_nil.text)
        Head(strOther.m_pszData)->refs = kLocked;
    std::swap(m_pszData, strOther.m_pszData);
}

int CSimpleString::StringLength(LPCWSTR psz) noexcept {
    return psz ? static_cast<int>(::wcslen(psz)) : 0;
}

int CSimpleString::StringLength(LPCSTR psz) noexcept {
    return psz ? static_cast<int>(std::strlen(psz)) : 0;
}

void CSimpleString::CopyChars(LPWSTR pchDest, LPCWSTR pchSrc, int nChars) noexcept {
    if (nChars > 0)
        std::memcpy(pchDest, pchSrc, static_cast<size_t>(nChars) * sizeof(WCHAR));
}

void CSimpleString::CopyCharsOverlapped(LPWSTR pchDest, LPCWSTR pchSrc, int nChars) noexcept {
    if (nChars > 0)
        std::memmove(pchDest, pchSrc, static_cast<size_t>(nChars) * sizeof(WCHAR));
}

LPWSTR CSimpleString::Clone(LPCWSTR psz) {
    const int length = Head(psz)->length;
    LPWSTR const copy = Allocate(length);
    CopyChars(copy, psz, length + 1);
    Head(copy)->length = length;
    return copy;
}

// Kept out of line: the compiler would take the empty text, which is never released, for a candidate.
__attribute__((noinline)) void CSimpleString::Free(Header* head) noexcept {
    std::free(head);
}

// A buffer of one owner and length 0; the caller sets both text and length.
LPWSTR CSimpleString::Allocate(int nCapacity) {
    const size_t bytes = sizeof(Header) + (static_cast<size_t>(nCapacity) + 1) * sizeof(WCHAR);
    Header* const head = static_cast<Header*>(Had(std::malloc(bytes)));
    *head = Header{1, 0, nCapacity, 0};
    LPWSTR const text = reinterpret_cast<LPWSTR>(head + 1);
    text[0] = text[nCapacity] = L'\0';
    return text;
}

// Doubles, so that a text built unit by unit is copied a constant number of times on average.
int CSimpleString::GrownCapacity(int nOld, int nNeeded) noexcept {
    // The heap rounds blocks up to steps of eight units, its own head of four units included; so does this,
    // and no unit of the block is left unused.
    constexpr int kGranularity = 8;
    constexpr int kHeapHead = 4;
    const long long grown = 2LL * nOld;
    long long wanted = grown > nNeeded ? grown : nNeeded;
    wanted = (wanted + kHeapHead) / kGranularity * kGranularity + kHeapHead - 1;
    return wanted < INT_MAX ? static_cast<int>(wanted) : INT_MAX - 1;
}

// More room for a text that has one owner, in place where the heap allows it.
void CSimpleString::Grow(int nCapacity) {
    const size_t bytes = sizeof(Header) + (static_cast<size_t>(nCapacity) + 1) * sizeof(WCHAR);
    Header* const head = static_cast<Header*>(Had(std::realloc(Head(m_pszData), bytes)));
    head->capacity = nCapacity;
    m_pszData = reinterpret_cast<LPWSTR>(head + 1);
}

bool CSimpleString::IsShared() const noexcept {
    const long refs = __atomic_load_n(&Head(m_pszData)->refs, __ATOMIC_ACQUIRE);
    return refs > 1 || refs == kForever;
}

void CSimpleString::Reserve(int nCapacity) {
    Header* const head = Head(m_pszData);
    if (nCapacity == 0 && m_pszData == s_nil.text)
        return;
    const bool shared = IsShared();
    if (!shared && nCapacity <= head->capacity)
        return;
    const int length = head->length;
    const int oldRoom = shared ? 0 : head->capacity;
    LPWSTR const fresh = Allocate(GrownCapacity(oldRoom, nCapacity > length ? nCapacity : length));
    CopyChars(fresh, m_pszData, length + 1);
    Head(fresh)->length = length;
    if (head->refs == kLocked)
        Head(fresh)->refs = kLocked;
    Release(m_pszData);
    m_pszData = fresh;
}

void CSimpleString::SetLengthUnchecked(int nLength) noexcept {
    Head(m_pszData)->length = nLength;
    m_pszData[nLength] = L'\0';
}
