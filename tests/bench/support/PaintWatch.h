// Tells when a box that opens on this thread has painted itself and all its controls, and closes it then.
#pragma once

#include <windows.h>

#include <chrono>

// While an object lives, the first dialog window that is activated on this thread is watched. Seconds() is the time
// from construction to the moment when no part of the dialog was left to paint.
class PaintWatch {
  public:
    // closeCommand: id of the button that the dialog gets as pressed once it is painted.
    explicit PaintWatch(int closeCommand);
    PaintWatch(const PaintWatch&) = delete;
    PaintWatch& operator=(const PaintWatch&) = delete;
    ~PaintWatch();

    // 0 when the dialog was never painted.
    double Seconds() const { return m_seconds; }

  private:
    static LRESULT CALLBACK OnActivate(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR watch);
    void Watch(HWND dialog);
    void PartPainted();

    using Clock = std::chrono::steady_clock;

    static PaintWatch* s_current;
    HHOOK m_hook;
    HWND m_dialog = nullptr;
    int m_closeCommand;
    double m_seconds = 0;
    Clock::time_point m_start = Clock::now();
};
