// Diagnostics: assertions, trace lines, and the test whether memory may be touched.
#pragma once

#include "InvalidArgException.h"

// Writes "file(line): assertion failed" to the debugger and breaks into it. Any thread.
AFXFRAME_API void AFXAPI AfxAssertFailed(const char* pszFile, int nLine, const char* pszExpression);

// Writes a formatted line (rules of CString::Format) to the debugger. A null format writes nothing. Any
// thread.
AFXFRAME_API void AFX_CDECL AfxTrace(LPCWSTR pszFormat, ...);
AFXFRAME_API void AFX_CDECL AfxTrace(LPCSTR pszFormat, ...);

// ASSERT is checked in debug builds only; VERIFY evaluates its expression in every build.
#ifdef _DEBUG
#define ASSERT(f) (void)((f) ? 0 : (AfxAssertFailed(__FILE__, __LINE__, #f), 0))
#define VERIFY(f) ASSERT(f)
#define TRACE ::AfxTrace
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define TRACE(...) ((void)0)
#endif
#define TRACE0(sz) TRACE(sz)
#define TRACE1(sz, p1) TRACE(sz, p1)
#define TRACE2(sz, p1, p2) TRACE(sz, p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(sz, p1, p2, p3)
#define ASSERT_VALID(p) ASSERT((p) != nullptr)
#define ENSURE(cond)                                                                                         \
    do {                                                                                                     \
        if (!(cond)) {                                                                                       \
            ASSERT(false);                                                                                   \
            ::AfxThrowInvalidArgException();                                                                 \
        }                                                                                                    \
    } while (false)

// TRUE when pointer and size name committed memory that can be read (and written, with bReadWrite). A null
// pointer is FALSE. The answer is of the moment; use it for diagnosis only. Any thread.
AFXFRAME_API BOOL AFXAPI AfxIsValidAddress(const void* p, UINT_PTR nBytes, BOOL bReadWrite = TRUE);

// TRUE when the pointer names a readable, terminated string of at most nLength characters (-1: no limit).
AFXFRAME_API BOOL AFXAPI AfxIsValidString(LPCWSTR psz, int nLength = -1);
