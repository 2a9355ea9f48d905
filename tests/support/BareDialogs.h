// The system's own dialogs, shown and closed at once: the peers of ours where the platform's own loss is taken off.
#pragma once

namespace qvtest {

// The hook-style file dialog in the process's current folder. Cancels itself when it is initialised.
void runBareFileDialog();

} // namespace qvtest
