// Formats a text after the rules documented at CString::Format.
#pragma once

#include "afx/String.h"

// Walks a format once. Integers, texts and units are written here; floating-point numbers by the C run-time.
class TextFormatter {
  public:
    explicit TextFormatter(CString& result) : m_result(result) {}
    TextFormatter(const TextFormatter&) = delete;
    TextFormatter& operator=(const TextFormatter&) = delete;

    // Appends the formatted text. pArgs is consumed.
    void Run(LPCWSTR pszFormat, va_list* pArgs);

  private:
    enum class Size { Default, Char, Short, Long, LongLong, Pointer, LongDouble, Wide };
    struct Field {
        bool isLeft = false;
        bool isZero = false;
        bool hasPlus = false;
        bool hasSpace = false;
        bool hasHash = false;
        int width = 0;
        int precision = -1; // none
        Size size = Size::Default;
    };

    LPCWSTR ReadField(LPCWSTR psz, Field& field, va_list* pArgs) const;
    LPCWSTR ReadFlags(LPCWSTR psz, Field& field) const;
    static LPCWSTR ReadSize(LPCWSTR psz, Field& field);
    bool Convert(WCHAR letter, const Field& field, va_list* pArgs);
    void PutInteger(WCHAR letter, const Field& field, va_list* pArgs);
    void PutDigits(WCHAR letter, const Field& field, bool isNegative, unsigned long long magnitude);
    void PutFloat(WCHAR letter, const Field& field, va_list* pArgs);
    void PutPointer(const Field& field, va_list* pArgs);
    void PutText(bool isWide, const Field& field, va_list* pArgs);
    void PutUnit(bool isWide, const Field& field, va_list* pArgs);
    void PutRepeated(WCHAR ch, int nCount);
    void PutPadded(LPCWSTR psz, int nLength, const Field& field);
    template <class Value> void PutNumber(const char* pszSizeAndLetter, const Field& field, Value value);

    CString& m_result;
};
