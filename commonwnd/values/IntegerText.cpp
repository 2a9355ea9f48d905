#include "IntegerText.h"

#include <cwchar>

namespace _qv_commonwnd {

long long LeadingInteger(const wchar_t* text) {
    return text ? wcstoll(text, nullptr, 10) : 0;
}

} // namespace _qv_commonwnd
