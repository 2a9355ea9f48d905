// CString: buffers, ownership, construction and assignment.
#include "afxstr.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace {

constexpr UINT kAnsi = CP_ACP;

int UnitsOfNarrow(LPCSTR psz, int nBytes) {
    return nBytes > 0 ? ::MultiByteToWideChar(kAnsi, 0, psz, nBytes, nullptr, 0) : 0;
}

void* Had(void* memory) {
    if (!memory)
        AfxThrowMemoryException();
    return memory;
}

} // namespace

// Constant-initialised: strings may be made by static constructors of any module in any order.
constinit CString::Nil CString::s_nil = {{CString::kForever, 0, 0, 0}, {0, 0}};

CString::CString(LPCWSTR pszSrc) : m_pszData(s_nil.text) {
    if (pszSrc && IS_INTRESOURCE(pszSrc))
        LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(pszSrc)));
    else
        SetString(pszSrc);
}

CString::CString(LPCSTR pszSrc) : m_pszData(s_nil.text) {
    AssignNarrow(pszSrc, StringLength(pszSrc));
}

CString::CString(const unsigned char* pszSrc) : CString(reinterpret_cast<LPCSTR>(pszSrc)) {
}

CString::CString(WCHAR ch, int nRepeat) : m_pszData(s_nil.text) {
    if (nRepeat > 0)
        std::wmemset(GetBufferSetLength(nRepeat), ch, static_cast<size_t>(nRepeat));
}

CString::CString(char ch, int nRepeat) : CString(CString(&ch, 1).GetAt(0), nRepeat) {
}

CString::CString(LPCWSTR pszSrc, int nLength) : m_pszData(s_nil.text) {
    if (!pszSrc || nLength <= 0)
        return;
    m_pszData = Allocate(GrownCapacity(0, nLength));
    CopyChars(m_pszData, pszSrc, nLength);
    SetLengthUnchecked(nLength);
}

CString::CString(LPCSTR pszSrc, int nLength) : m_pszData(s_nil.text) {
    AssignNarrow(pszSrc, nLength);
}

CString& CString::operator=(const CString& strSrc) {
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

CString& CString::operator=(CString&& strSrc) noexcept {
    if (Head(m_pszData)->refs == kLocked)
        SetString(strSrc, strSrc.GetLength());
    else
        std::swap(m_pszData, strSrc.m_pszData);
    return *this;
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

void CString::SetString(LPCWSTR pszSrc) {
    SetString(pszSrc, StringLength(pszSrc));
}

void CString::SetString(LPCWSTR pszSrc, int nLength) {
    if (!pszSrc || nLength <= 0) {
        Empty();
        return;
    }
    Splice(0, GetLength(), pszSrc, nLength);
}

void CString::Empty() noexcept {
    if (Head(m_pszData)->refs == kLocked) {
        SetLengthUnchecked(0);
        return;
    }
    Release(m_pszData);
    m_pszData = s_nil.text;
}

WCHAR CString::GetAt(int iChar) const noexcept {
    return iChar >= 0 && iChar <= GetLength() ? m_pszData[iChar] : L'\0';
}

void CString::SetAt(int iChar, WCHAR ch) {
    if (iChar >= 0 && iChar < GetLength())
        GetBuffer()[iChar] = ch;
}

LPWSTR CString::GetBuffer() {
    return GetBuffer(GetLength());
}

LPWSTR CString::GetBuffer(int nMinBufferLength) {
    const int length = GetLength();
    Reserve(nMinBufferLength > length ? nMinBufferLength : length);
    return m_pszData;
}

LPWSTR CString::GetBufferSetLength(int nLength) {
    const int length = nLength > 0 ? nLength : 0;
    GetBuffer(length);
    if (m_pszData != s_nil.text)
        SetLengthUnchecked(length);
    return m_pszData;
}

void CString::ReleaseBuffer(int nNewLength) {
    if (m_pszData == s_nil.text)
        return;
    const int room = GetAllocLength();
    int length = nNewLength;
    if (length < 0)
        length = static_cast<int>(::wcsnlen(m_pszData, static_cast<size_t>(room)));
    SetLengthUnchecked(length < room ? length : room);
}

void CString::Preallocate(int nLength) {
    GetBuffer(nLength);
}

void CString::FreeExtra() {
    const int length = GetLength();
    if (length == GetAllocLength() || Head(m_pszData)->refs == kLocked)
        return;
    CString exact;
    if (length > 0)
        exact.SetString(m_pszData, length);
    *this = std::move(exact);
}

void CString::Truncate(int nNewLength) {
    const int length = nNewLength > 0 ? nNewLength : 0;
    if (length >= GetLength())
        return;
    GetBuffer();
    SetLengthUnchecked(length);
}

LPWSTR CString::LockBuffer() {
    Reserve(GetLength() > 0 ? GetLength() : 1); // the shared empty text cannot be locked
    Head(m_pszData)->refs = kLocked;
    return m_pszData;
}

void CString::UnlockBuffer() noexcept {
    if (Head(m_pszData)->refs == kLocked)
        Head(m_pszData)->refs = 1;
}

int CString::StringLength(LPCWSTR psz) noexcept {
    return psz ? static_cast<int>(::wcslen(psz)) : 0;
}

int CString::StringLength(LPCSTR psz) noexcept {
    return psz ? static_cast<int>(std::strlen(psz)) : 0;
}

void CString::CopyChars(LPWSTR pchDest, LPCWSTR pchSrc, int nChars) noexcept {
    if (nChars > 0)
        std::memcpy(pchDest, pchSrc, static_cast<size_t>(nChars) * sizeof(WCHAR));
}

void CString::CopyCharsOverlapped(LPWSTR pchDest, LPCWSTR pchSrc, int nChars) noexcept {
    if (nChars > 0)
        std::memmove(pchDest, pchSrc, static_cast<size_t>(nChars) * sizeof(WCHAR));
}

LPWSTR CString::Clone(LPCWSTR psz) {
    const int length = Head(psz)->length;
    LPWSTR const copy = Allocate(length);
    CopyChars(copy, psz, length + 1);
    Head(copy)->length = length;
    return copy;
}

// Kept out of line: the compiler would take the empty text, which is never released, for a candidate.
__attribute__((noinline)) void CString::Free(Header* head) noexcept {
    std::free(head);
}

// A buffer of one owner and length 0; the caller sets both text and length.
LPWSTR CString::Allocate(int nCapacity) {
    const size_t bytes = sizeof(Header) + (static_cast<size_t>(nCapacity) + 1) * sizeof(WCHAR);
    Header* const head = static_cast<Header*>(Had(std::malloc(bytes)));
    *head = Header{1, 0, nCapacity, 0};
    LPWSTR const text = reinterpret_cast<LPWSTR>(head + 1);
    text[0] = text[nCapacity] = L'\0';
    return text;
}

// Doubles, so that a text built unit by unit is copied a constant number of times on average.
int CString::GrownCapacity(int nOld, int nNeeded) noexcept {
    // The heap rounds blocks up to steps of eight units, its own head of four units included; so does this, and no unit
    // of the block is left unused.
    constexpr int kGranularity = 8;
    constexpr int kHeapHead = 4;
    const long long grown = 2LL * nOld;
    long long wanted = grown > nNeeded ? grown : nNeeded;
    wanted = (wanted + kHeapHead) / kGranularity * kGranularity + kHeapHead - 1;
    return wanted < INT_MAX ? static_cast<int>(wanted) : INT_MAX - 1;
}

// More room for a text that has one owner, in place where the heap allows it.
void CString::Grow(int nCapacity) {
    const size_t bytes = sizeof(Header) + (static_cast<size_t>(nCapacity) + 1) * sizeof(WCHAR);
    Header* const head = static_cast<Header*>(Had(std::realloc(Head(m_pszData), bytes)));
    head->capacity = nCapacity;
    m_pszData = reinterpret_cast<LPWSTR>(head + 1);
}

bool CString::IsShared() const noexcept {
    const long refs = __atomic_load_n(&Head(m_pszData)->refs, __ATOMIC_ACQUIRE);
    return refs > 1 || refs == kForever;
}

void CString::Reserve(int nCapacity) {
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

void CString::SetLengthUnchecked(int nLength) noexcept {
    Head(m_pszData)->length = nLength;
    m_pszData[nLength] = L'\0';
}

void CString::AssignNarrow(LPCSTR psz, int nLength) {
    const int units = psz ? UnitsOfNarrow(psz, nLength) : 0;
    CString wide;
    if (units > 0)
        ::MultiByteToWideChar(kAnsi, 0, psz, nLength, wide.GetBufferSetLength(units), units);
    *this = std::move(wide);
}
