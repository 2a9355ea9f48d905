// CString: formatting, string resources, and exchange with the system.
#include "afxstr.h"
#include "afxstat_.h"
#include "TextFormatter.h"

#include <utility>

namespace {

constexpr UINT kStringsPerBlock = 16; // string resources are stored in blocks of so many

LPCWSTR BlockName(UINT nID) {
    // Names of resources are numbers or texts: the platform tells them apart by their size.
    // cppcheck-suppress CastIntegerToAddressAtReturn
    return MAKEINTRESOURCEW(nID / kStringsPerBlock + 1);
}

// The counted string of a resource block, empty when it has none.
CString StringInBlock(HINSTANCE hInstance, HRSRC hResource, UINT nID) {
    HGLOBAL const loaded = hResource ? ::LoadResource(hInstance, hResource) : nullptr;
    const WORD* at = loaded ? static_cast<const WORD*>(::LockResource(loaded)) : nullptr;
    if (!at)
        return CString();
    const WORD* const end = at + ::SizeofResource(hInstance, hResource) / sizeof(WORD);
    for (UINT skip = nID % kStringsPerBlock; skip > 0 && at < end; --skip)
        at += 1 + *at;
    if (at >= end || *at > end - at - 1)
        return CString();
    return CString(reinterpret_cast<LPCWSTR>(at + 1), *at);
}

BOOL Take(CString& target, CString&& found) {
    if (found.IsEmpty())
        return FALSE;
    target = std::move(found);
    return TRUE;
}

} // namespace

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
    constexpr int kFirstTry = 256; // units with terminator; what does not fit comes back cut to it
    CString found;
    for (int room = kFirstTry;; room *= 2) {
        const int length = AfxLoadString(nID, found.GetBuffer(room), static_cast<UINT>(room));
        found.ReleaseBuffer(length);
        if (length < room - 1)
            return Take(*this, std::move(found));
    }
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID) {
    return Take(*this, StringInBlock(hInstance, ::FindResourceW(hInstance, BlockName(nID), RT_STRING), nID));
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID) {
    HRSRC const resource = ::FindResourceExW(hInstance, RT_STRING, BlockName(nID), wLanguageID);
    return Take(*this, StringInBlock(hInstance, resource, nID));
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
    BSTR const text = ::SysAllocStringLen(m_pszData, static_cast<UINT>(GetLength()));
    if (!text)
        AfxThrowMemoryException();
    return text;
}

BSTR CString::SetSysString(BSTR* pbstr) const {
    if (!pbstr)
        return nullptr;
    if (!::SysReAllocStringLen(pbstr, m_pszData, static_cast<UINT>(GetLength())))
        AfxThrowMemoryException();
    return *pbstr;
}
