#include "IntegerText.h"

#include <algorithm>
#include <climits>
#include <cwchar>

namespace _qv_commonwnd {

long long LeadingInteger(const wchar_t* text) {
    return text ? wcstoll(text, nullptr, 10) : 0;
}

int LeadingInt32(const wchar_t* text) {
    return static_cast<int>(std::clamp<long long>(LeadingInteger(text), INT_MIN, INT_MAX));
}

} // namespace _qv_commonwnd
