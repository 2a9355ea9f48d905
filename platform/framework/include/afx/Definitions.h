// The ground that every other header of the framework stands on: the platform header with the library's
// defines, import and export of the framework's names, and opaque positions.
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
#define afx_msg // marks a message handler for the reader

// Opaque position in a collection; NULL means "no position" (before the first or behind the last element).
struct AfxPositionTag;
typedef AfxPositionTag* POSITION;
#define BEFORE_START_POSITION (reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1)))
