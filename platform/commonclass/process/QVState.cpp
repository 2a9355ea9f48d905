// The process-wide table of figures.
#include "QVState.h"
#include <array>
#include <atomic>

namespace _qv_commonclass {

namespace {

constinit std::array<std::atomic<int>, kStateCount> g_states{};

bool isStateIndex(int index) {
    return index >= 0 && index < kStateCount;
}

} // namespace

int QV_GetState(int index) {
    return isStateIndex(index) ? g_states[static_cast<std::size_t>(index)].load() : 0;
}

int QV_SetState(int index, int value) {
    return isStateIndex(index) ? g_states[static_cast<std::size_t>(index)].exchange(value) : 0;
}

} // namespace _qv_commonclass
