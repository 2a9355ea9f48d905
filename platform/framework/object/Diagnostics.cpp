// Diagnostics: lines to the debugger, and the test of addresses.
#include "afx/Diagnostics.h"
#include "afx/String.h"

#include <cstdarg>
#include <limits>

void AFXAPI AfxAssertFailed(const char* pszFile, int nLine, const char* pszExpression) {
    AfxTrace(L"%S(%d): assertion failed: %S\n", pszFile ? pszFile : "?", nLine,
             pszExpression ? pszExpression : "?");
    if (::IsDebuggerPresent())
        ::DebugBreak();
}

void AFX_CDECL AfxTrace(LPCWSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    CString line;
    line.FormatV(pszFormat, args);
    va_end(args);
    ::OutputDebugStringW(line);
}

void AFX_CDECL AfxTrace(LPCSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    CString line;
    line.FormatV(CString(pszFormat), args);
    va_end(args);
    ::OutputDebugStringW(line);
}

BOOL AFXAPI AfxIsValidAddress(const void* p, UINT_PTR nBytes, BOOL bReadWrite) {
    constexpr DWORD kWritable =
        PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    constexpr DWORD kReadable = kWritable | PAGE_READONLY | PAGE_EXECUTE_READ;
    const ULONG_PTR begin = reinterpret_cast<ULONG_PTR>(p);
    if (!p || nBytes > std::numeric_limits<ULONG_PTR>::max() - begin)
        return FALSE;
    const ULONG_PTR end = begin + (nBytes ? nBytes : 1);
    for (ULONG_PTR at = begin; at < end;) {
        MEMORY_BASIC_INFORMATION page = {};
        if (!::VirtualQuery(reinterpret_cast<LPCVOID>(at), &page, sizeof(page)))
            return FALSE;
        const DWORD wanted = bReadWrite ? kWritable : kReadable;
        if (page.State != MEM_COMMIT || (page.Protect & PAGE_GUARD) || !(page.Protect & wanted))
            return FALSE;
        at = reinterpret_cast<ULONG_PTR>(page.BaseAddress) + page.RegionSize;
    }
    return TRUE;
}

BOOL AFXAPI AfxIsValidString(LPCWSTR psz, int nLength) {
    constexpr ULONG_PTR kProbe = 4096; // bytes asked at a time: the size of a page
    ULONG_PTR checked = reinterpret_cast<ULONG_PTR>(psz);
    if (!psz)
        return FALSE;
    for (int i = 0; nLength < 0 || i <= nLength; ++i) {
        const ULONG_PTR end = reinterpret_cast<ULONG_PTR>(psz + i + 1);
        if (end > checked) {
            const ULONG_PTR pageEnd = (checked / kProbe + 1) * kProbe;
            if (!AfxIsValidAddress(reinterpret_cast<const void*>(checked), pageEnd - checked, FALSE))
                return FALSE;
            checked = pageEnd;
        }
        if (!psz[i])
            return TRUE;
    }
    return FALSE;
}
