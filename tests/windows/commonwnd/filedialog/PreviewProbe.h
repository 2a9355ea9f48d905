// A host's window for docking that notes what the dialog tells it.
#pragma once

#include "FileDialogFixture.h"

#include <mutex>

namespace filedialog_test {

class PreviewProbe : public CWnd {
  public:
    struct Note {
        WPARAM what = 0;
        std::wstring path{};             // of what 1
        bool isNull = false;             // of what 1: no path
        int count = 0;                   // of what 2
        CQVFileDialog* dialog = nullptr; // of what 5
        bool operator==(const Note&) const = default;
    };

    // A top-level window of this size, not shown.
    explicit PreviewProbe(CSize size);
    ~PreviewProbe() override;

    // What came since the last call; may be called from any thread.
    std::vector<Note> TakeNotes();

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    std::mutex m_guard;
    std::vector<Note> m_notes;
};

} // namespace filedialog_test
