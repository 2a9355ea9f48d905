// Basic definitions that every other header of the framework stands on: import and export of its names,
// the platform header with the library's defines, opaque positions, and the diagnostic macros.
//
// Include it only through afx.h, afxwin.h or one of the collection headers.
#pragma once

#ifndef STRICT
#define STRICT
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef UNICODE
#error The framework is Unicode only: define UNICODE and _UNICODE.
#endif

#include <windows.h>
#include <tchar.h>
#include <cstddef>

// Names of this DLL: exported while it is built, nothing when all sources link into one program, imported
// else.
#if defined(QV_STATIC_LINK)
#define AFXFRAME_API
#elif defined(AFXFRAME_EXPORTS)
#define AFXFRAME_API __declspec(dllexport)
#else
#define AFXFRAME_API __declspec(dllimport)
#endif

// Names of an extension DLL: it is built with _AFXEXT defined, its users without.
#if defined(QV_STATIC_LINK)
#define AFX_EXT_CLASS
#elif defined(_AFXEXT)
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#endif
#define AFX_EXT_API AFX_EXT_CLASS
#define AFX_EXT_DATA AFX_EXT_CLASS

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define AFX_INLINE inline
#define afx_msg // marks a message handler for the reader

// Opaque position in a collection; NULL means "no position" (before the first or behind the last element).
struct AfxPositionTag;
typedef AfxPositionTag* POSITION;
#define BEFORE_START_POSITION (reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1)))

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
#define ASSERT_POINTER(p, type) ASSERT(AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type) ASSERT((p) == nullptr || AfxIsValidAddress((p), sizeof(type), FALSE))
#define ENSURE(cond)                                                                                         \
    do {                                                                                                     \
        if (!(cond)) {                                                                                       \
            ASSERT(false);                                                                                   \
            ::AfxThrowInvalidArgException();                                                                 \
        }                                                                                                    \
    } while (false)

#define UNUSED_ALWAYS(x) ((void)(x))
#define UNUSED(x) ((void)(x))

// Reports an impossible argument: throws CInvalidArgException* (see afxexcept.h). Any thread.
[[noreturn]] AFXFRAME_API void AFXAPI AfxThrowInvalidArgException();

// Reports that memory ran out or a size is beyond what the type can hold: throws CMemoryException*. Any
// thread.
[[noreturn]] AFXFRAME_API void AFXAPI AfxThrowMemoryException();

// TRUE when pointer and size name committed memory that can be read (and written, with bReadWrite). A null
// pointer is FALSE. The answer is of the moment; use it for diagnosis only. Any thread.
AFXFRAME_API BOOL AFXAPI AfxIsValidAddress(const void* p, UINT_PTR nBytes, BOOL bReadWrite = TRUE);

// TRUE when the pointer names a readable, terminated string of at most nLength characters (-1: no limit).
AFXFRAME_API BOOL AFXAPI AfxIsValidString(LPCWSTR psz, int nLength = -1);
