// What -fsanitize=undefined calls when an operation has no defined result: says where, and ends the program
// with exit code 99. The toolchain has these functions for other systems only. This file is built without the
// sanitizer.
#include <windows.h>

#include <cstdio>

namespace {

constexpr UINT kExitCode = 99;

// The first member of what every handler gets, as the compiler lays it out.
struct SourceLocation {
    const char* file;
    unsigned line;
    unsigned column;
};

// Not exit(): destructors of other DLLs must not run on broken state.
[[noreturn]] void endProgram(const char* what, const SourceLocation* where) {
    std::fprintf(stderr, "%s:%u:%u: undefined behaviour: %s\n", where ? where->file : "?",
                 where ? where->line : 0, where ? where->column : 0, what);
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), kExitCode);
    __builtin_unreachable();
}

} // namespace

// The compiler names the functions; the last ones get the location as their second argument.
#define QV_HANDLER(name, text)                                                                               \
    extern "C" void __ubsan_handle_##name##_abort(const SourceLocation* where, ...) {                        \
        endProgram(text, where);                                                                             \
    }

QV_HANDLER(type_mismatch_v1, "null or misaligned pointer, or an object that is too small")
QV_HANDLER(add_overflow, "signed addition overflows")
QV_HANDLER(sub_overflow, "signed subtraction overflows")
QV_HANDLER(mul_overflow, "signed multiplication overflows")
QV_HANDLER(negate_overflow, "negation overflows")
QV_HANDLER(divrem_overflow, "division by zero, or its result does not fit")
QV_HANDLER(shift_out_of_bounds, "shift by too much or of a negative value")
QV_HANDLER(out_of_bounds, "index out of bounds")
QV_HANDLER(vla_bound_not_positive, "array bound is not positive")
QV_HANDLER(load_invalid_value, "a bool or enum holds another value")
QV_HANDLER(nonnull_arg, "null passed where it is not allowed")
QV_HANDLER(pointer_overflow, "pointer arithmetic overflows")
QV_HANDLER(float_cast_overflow, "a floating-point value does not fit the integer")
QV_HANDLER(invalid_builtin, "a built-in function got a value that it does not take")

extern "C" void __ubsan_handle_builtin_unreachable(const SourceLocation* where) {
    endProgram("a place that cannot be reached was reached", where);
}

extern "C" void __ubsan_handle_missing_return(const SourceLocation* where) {
    endProgram("a function ended without its value", where);
}

extern "C" void __ubsan_handle_nonnull_return_v1_abort(const void*, const SourceLocation* where) {
    endProgram("null returned where it is not allowed", where);
}
