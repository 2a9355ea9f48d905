// Reading a whole number as the integer dialog does.
#pragma once

namespace _qv_commonwnd {

// The decimal number at the start of a text: white space, a sign, digits; what follows is ignored ("12abc" is
// 12). 0 without digits and for null. A number beyond 64 bits is the nearest 64-bit one.
long long LeadingInteger(const wchar_t* text);

} // namespace _qv_commonwnd
