// What goes wrong on purpose, in a process of its own: the tests of the driver start it.
#include "ModalScript.h"

#include <gtest/gtest.h>

TEST(Probe, NeverReturns) {
    qvtest::ModalScript script(qvtest::Milliseconds(300));
    script.run([] {
        for (;;)
            Sleep(1000);
        return 0;
    });
}

TEST(Probe, SleepsLong) {
    Sleep(20000);
}
