// Reading a whole number as the dialogs for values do.
#pragma once

namespace _qv_commonwnd {

// The decimal number at the start of a text: white space, a sign, digits; what follows is ignored ("12abc" is
// 12). 0 without digits and for null. A number beyond 64 bits is the nearest 64-bit one. (The system's
// StrToInt has 32 bits, in which a number may change its sign, and takes neither white space nor a plus; the
// limits here have 64.)
long long LeadingInteger(const wchar_t* text);

// The same, bounded to 32 bits.
int LeadingInt32(const wchar_t* text);

} // namespace _qv_commonwnd
