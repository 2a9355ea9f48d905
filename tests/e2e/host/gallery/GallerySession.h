// GallerySession.h: one run of the gallery, started, driven and closed from outside.
#pragma once

#include "ChildProcess.h"
#include "Driver.h"
#include "TempFolder.h"

#include <memory>
#include <string>
#include <vector>

namespace gallery {

struct Look {
    std::wstring language = L"en-US"; // a dictionary's name
    std::wstring skin = L"dark";      // a skin's name
};

// Every member that waits has a deadline and throws qvtest::StepFailure when it passes.
class GallerySession {
  public:
    explicit GallerySession(const Look& look);
    ~GallerySession(); // ends the program when it still runs

    HWND mainWindow() const { return m_main; }
    DWORD process() const { return m_process->id(); }
    qvtest::Driver& user() { return m_user; }
    const qvtest::TempFolder& samples() const { return m_samples; }

    // Clicks the button of an entry (its stable name); returns when the gallery has begun to run it.
    void open(const std::wstring& item);
    // Waits for a further top-level window of the gallery, the one in front of `behind` (null: the main
    // window).
    HWND waitDialog(HWND behind = nullptr);
    // Waits until the entry is over, and returns the values it reported under `name` since it was opened.
    std::vector<std::wstring> waitClosed(const std::wstring& item);
    std::vector<std::wstring> values(const std::wstring& name) const;

    // Saves a picture of a window as NAME-SKIN-LANGUAGE.png in the folder for demo pictures.
    void picture(HWND window, const std::wstring& name);

    // Closes the gallery as a user does. Returns its exit code.
    DWORD close();

  private:
    struct Line {
        std::wstring name;
        std::wstring value;
    };
    std::vector<Line> readLog() const;
    void makeSamples();
    void waitReady();

    Look m_look;
    qvtest::TempFolder m_samples;
    qvtest::TempFolder m_logFolder;
    std::unique_ptr<qvtest::ChildProcess> m_process;
    qvtest::Driver m_user;
    HWND m_main = nullptr;
    size_t m_openedAt = 0; // lines of the log when the last entry was opened
};

} // namespace gallery
