// Formats a text: reads the fields of the format, takes the arguments apart and writes them.
#include "TextFormatter.h"

#include <cstdint>
#include <cstdio>
#include <string>

namespace {

int ReadNumber(LPCWSTR& psz) {
    int value = 0;
    for (; *psz >= L'0' && *psz <= L'9'; ++psz)
        if (value < kAfxMaxFormatField)
            value = value * 10 + (*psz - L'0');
    return value < kAfxMaxFormatField ? value : kAfxMaxFormatField;
}

int Limit(long long value) {
    return static_cast<int>(value < kAfxMaxFormatField ? value : kAfxMaxFormatField);
}

int LengthWithin(LPCWSTR psz, int nLimit) {
    return static_cast<int>(nLimit < 0 ? ::wcslen(psz) : ::wcsnlen(psz, static_cast<size_t>(nLimit)));
}

int LengthWithin(LPCSTR psz, int nLimit) {
    return static_cast<int>(nLimit < 0 ? ::strlen(psz) : ::strnlen(psz, static_cast<size_t>(nLimit)));
}

} // namespace

void TextFormatter::Run(LPCWSTR pszFormat, va_list* pArgs) {
    LPCWSTR at = pszFormat;
    while (*at) {
        LPCWSTR literal = at;
        while (*at && *at != L'%')
            ++at;
        m_result.Append(literal, static_cast<int>(at - literal));
        if (!*at)
            return;
        LPCWSTR const percent = at++;
        if (*at == L'%') {
            m_result.AppendChar(*at++);
            continue;
        }
        Field field;
        at = ReadField(at, field, pArgs);
        if (*at && Convert(*at, field, pArgs))
            ++at;
        else // not a conversion: the text stands for itself
            m_result.Append(percent, static_cast<int>((*at ? ++at : at) - percent));
    }
}

LPCWSTR TextFormatter::ReadFlags(LPCWSTR psz, Field& field) const {
    for (;; ++psz) {
        switch (*psz) {
        case L'-':
            field.isLeft = true;
            break;
        case L'0':
            field.isZero = true;
            break;
        case L'+':
            field.hasPlus = true;
            break;
        case L' ':
            field.hasSpace = true;
            break;
        case L'#':
            field.hasHash = true;
            break;
        default:
            return psz;
        }
    }
}

LPCWSTR TextFormatter::ReadField(LPCWSTR psz, Field& field, va_list* pArgs) const {
    psz = ReadFlags(psz, field);
    if (*psz == L'*') {
        const long long width = va_arg(*pArgs, int);
        field.isLeft = field.isLeft || width < 0;
        field.width = Limit(width < 0 ? -width : width);
        ++psz;
    } else {
        field.width = ReadNumber(psz);
    }
    if (*psz == L'.') {
        ++psz;
        if (*psz == L'*') {
            const int precision = va_arg(*pArgs, int);
            field.precision = precision < 0 ? -1 : Limit(precision);
            ++psz;
        } else {
            field.precision = ReadNumber(psz);
        }
    }
    return ReadSize(psz, field);
}

LPCWSTR TextFormatter::ReadSize(LPCWSTR psz, Field& field) {
    switch (*psz) {
    case L'h':
        field.size = psz[1] == L'h' ? Size::Char : Size::Short;
        return psz + (psz[1] == L'h' ? 2 : 1);
    case L'l':
        field.size = psz[1] == L'l' ? Size::LongLong : Size::Long;
        return psz + (psz[1] == L'l' ? 2 : 1);
    case L'L':
        field.size = Size::LongDouble;
        return psz + 1;
    case L'w':
        field.size = Size::Wide;
        return psz + 1;
    case L'j':
        field.size = Size::LongLong;
        return psz + 1;
    case L't':
    case L'z':
        field.size = Size::Pointer;
        return psz + 1;
    case L'I':
        if (psz[1] == L'6' && psz[2] == L'4') {
            field.size = Size::LongLong;
            return psz + 3;
        }
        if (psz[1] == L'3' && psz[2] == L'2') {
            field.size = Size::Long;
            return psz + 3;
        }
        field.size = Size::Pointer;
        return psz + 1;
    default:
        return psz;
    }
}

bool TextFormatter::Convert(WCHAR letter, const Field& field, va_list* pArgs) {
    const bool isForcedWide = field.size == Size::Long || field.size == Size::Wide;
    const bool isForcedNarrow = field.size == Size::Short;
    switch (letter) {
    case L'd':
    case L'i':
    case L'u':
    case L'o':
    case L'x':
    case L'X':
        PutInteger(letter, field, pArgs);
        return true;
    case L'e':
    case L'E':
    case L'f':
    case L'F':
    case L'g':
    case L'G':
    case L'a':
    case L'A':
        PutFloat(letter, field, pArgs);
        return true;
    case L'p':
        PutPointer(field, pArgs);
        return true;
    case L's':
        PutText(!isForcedNarrow, field, pArgs);
        return true;
    case L'S':
        PutText(isForcedWide, field, pArgs);
        return true;
    case L'c':
        PutUnit(!isForcedNarrow, field, pArgs);
        return true;
    case L'C':
        PutUnit(isForcedWide, field, pArgs);
        return true;
    default:
        return false;
    }
}

// Every integer is brought to 64 bits with the meaning of its size, and written as such.
void TextFormatter::PutInteger(WCHAR letter, const Field& field, va_list* pArgs) {
    const bool isWide = field.size == Size::LongLong || field.size == Size::Pointer;
    long long value = isWide ? va_arg(*pArgs, long long) : va_arg(*pArgs, int);
    const bool isSigned = letter == L'd' || letter == L'i';
    if (field.size == Size::Short)
        value = isSigned ? static_cast<long long>(static_cast<short>(value))
                         : static_cast<long long>(static_cast<unsigned short>(value));
    else if (field.size == Size::Char)
        value = isSigned ? static_cast<long long>(static_cast<signed char>(value))
                         : static_cast<long long>(static_cast<unsigned char>(value));
    else if (!isWide && !isSigned)
        value = static_cast<unsigned int>(value);
    const bool isNegative = isSigned && value < 0;
    const unsigned long long bits = static_cast<unsigned long long>(value);
    PutDigits(letter, field, isNegative, isNegative ? 0 - bits : bits);
}

void TextFormatter::PutDigits(WCHAR letter, const Field& field, bool isNegative,
                              unsigned long long magnitude) {
    constexpr int kMostDigits = 22; // octal
    const unsigned base = letter == L'o' ? 8 : letter == L'x' || letter == L'X' ? 16 : 10;
    LPCWSTR const symbols = letter == L'x' ? L"0123456789abcdef" : L"0123456789ABCDEF";
    WCHAR digits[kMostDigits];
    int count = 0;
    for (unsigned long long rest = magnitude; rest != 0; rest /= base)
        digits[kMostDigits - ++count] = symbols[rest % base];
    CString prefix;
    if (letter == L'd' || letter == L'i')
        prefix = isNegative ? L"-" : field.hasPlus ? L"+" : field.hasSpace ? L" " : L"";
    else if (field.hasHash && base == 16 && magnitude != 0)
        prefix = letter == L'x' ? L"0x" : L"0X";
    int zeros = (field.precision < 0 ? 1 : field.precision) - count;
    if (field.hasHash && base == 8 && zeros <= 0)
        zeros = 1;
    const int padding = field.width - prefix.GetLength() - count - (zeros > 0 ? zeros : 0);
    if (field.isZero && !field.isLeft && field.precision < 0 && padding > 0)
        zeros = (zeros > 0 ? zeros : 0) + padding;
    else if (!field.isLeft)
        PutRepeated(L' ', padding);
    m_result += prefix;
    PutRepeated(L'0', zeros);
    m_result.Append(digits + kMostDigits - count, count);
    if (field.isLeft)
        PutRepeated(L' ', padding);
}

void TextFormatter::PutRepeated(WCHAR ch, int nCount) {
    if (nCount > 0)
        m_result += CString(ch, nCount);
}

void TextFormatter::PutFloat(WCHAR letter, const Field& field, va_list* pArgs) {
    if (field.size == Size::LongDouble) {
        const char spec[] = {'L', static_cast<char>(letter), '\0'};
        PutNumber(spec, field, va_arg(*pArgs, long double));
    } else {
        const char spec[] = {static_cast<char>(letter), '\0'};
        PutNumber(spec, field, va_arg(*pArgs, double));
    }
}

void TextFormatter::PutPointer(const Field& field, va_list* pArgs) {
    Field whole = field;
    whole.precision = static_cast<int>(sizeof(void*)) * 2; // all hexadecimal digits
    PutDigits(L'X', whole, false, reinterpret_cast<ULONG_PTR>(va_arg(*pArgs, void*)));
}

void TextFormatter::PutText(bool isWide, const Field& field, va_list* pArgs) {
    if (isWide) {
        LPCWSTR text = va_arg(*pArgs, LPCWSTR);
        if (!text)
            text = L"(null)";
        PutPadded(text, LengthWithin(text, field.precision), field);
        return;
    }
    LPCSTR text = va_arg(*pArgs, LPCSTR);
    if (!text)
        text = "(null)";
    const CString wide(text, LengthWithin(text, field.precision));
    PutPadded(wide, wide.GetLength(), field);
}

void TextFormatter::PutUnit(bool isWide, const Field& field, va_list* pArgs) {
    const int value = va_arg(*pArgs, int);
    if (isWide) {
        const WCHAR unit = static_cast<WCHAR>(value);
        PutPadded(&unit, 1, field);
        return;
    }
    const char narrow = static_cast<char>(value);
    const CString wide(&narrow, 1);
    PutPadded(wide, wide.GetLength(), field);
}

void TextFormatter::PutPadded(LPCWSTR psz, int nLength, const Field& field) {
    const int padding = field.width > nLength ? field.width - nLength : 0;
    if (!field.isLeft)
        PutRepeated(field.isZero ? L'0' : L' ', padding);
    m_result.Append(psz, nLength);
    if (field.isLeft)
        PutRepeated(L' ', padding);
}

template <class Value>
void TextFormatter::PutNumber(const char* pszSizeAndLetter, const Field& field, Value value) {
    std::string spec = "%";
    spec += field.isLeft ? "-" : "";
    spec += field.isZero ? "0" : "";
    spec += field.hasPlus ? "+" : "";
    spec += field.hasSpace ? " " : "";
    spec += field.hasHash ? "#" : "";
    if (field.width > 0)
        spec += std::to_string(field.width);
    if (field.precision >= 0)
        spec += "." + std::to_string(field.precision);
    spec += pszSizeAndLetter;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    char first[64];
    const int length = __mingw_snprintf(first, sizeof(first), spec.c_str(), value);
    if (length <= 0)
        return;
    std::string text(first, static_cast<size_t>(length) < sizeof(first) ? static_cast<size_t>(length) : 0);
    if (text.empty()) {
        text.resize(static_cast<size_t>(length) + 1);
        __mingw_snprintf(text.data(), text.size(), spec.c_str(), value);
        text.resize(static_cast<size_t>(length));
    }
#pragma GCC diagnostic pop
    const std::wstring wide(text.begin(), text.end()); // digits and signs: ASCII
    m_result.Append(wide.c_str(), static_cast<int>(wide.size()));
}
