// The single steps of a message loop.
#pragma once

#include <windows.h>

// Whether no message waits for the calling thread.
bool IsQueueEmpty();
// Whether a loop that has dispatched this message may have idle work again.
bool AfxIsIdleMessage(const MSG& message);
