// Import and export of this library's names.
#pragma once

// QVCOMMONCLASS_API stands before everything this library exports. A program that takes all sources in one
// (sanitizer builds) defines QV_STATIC_LINK and gets no import or export at all.
#if defined(QV_STATIC_LINK)
#define QVCOMMONCLASS_API
#elif defined(QVCOMMONCLASS_EXPORTS)
#define QVCOMMONCLASS_API __declspec(dllexport)
#else
#define QVCOMMONCLASS_API __declspec(dllimport)
#endif
