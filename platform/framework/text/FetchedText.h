// A text whose length is asked for before it is fetched into a buffer.
#pragma once

#include "afx/String.h"

// fetch(buffer) writes at most length units and a terminator, and answers how many units it wrote, -1 on
// failure.
template <class Fetch> CString FetchedText(int length, Fetch fetch) {
    CString text;
    if (length > 0) {
        const int stored = fetch(text.GetBuffer(length));
        text.ReleaseBuffer(stored < 0 ? 0 : stored);
    }
    return text;
}
