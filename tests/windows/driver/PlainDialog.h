// A dialog of the bare system for the tests of the driver: an edit, a check box, OK and Cancel, from a
// template in memory.
#pragma once

#include <windows.h>

#include <string>

class PlainDialog {
  public:
    enum class Closing { Polite, DeafToClose, Deaf };

    static constexpr int kEditId = 100;
    static constexpr int kCheckId = 101;
    static constexpr wchar_t kTitle[] = L"Plain dialog";

    explicit PlainDialog(Closing closing = Closing::Polite) : m_closing(closing) {}

    // IDOK or IDCANCEL; 0 when the window was destroyed from outside.
    INT_PTR run();

    // What stood in the edit and the check box at the end.
    std::wstring text;
    bool checked = false;

  private:
    static INT_PTR CALLBACK dialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool onCommand(HWND window, int id);

    Closing m_closing;
};
