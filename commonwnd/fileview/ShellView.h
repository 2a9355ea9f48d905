// The shell's view inside the file dialog: the owner of the list.
#pragma once

#include "ListAnswers.h"

#include <afxwin.h>

namespace _qv_commonwnd {

constexpr int kShellListId = 1; // of the list in the view

// The view in the file dialog's frame and its list; null when it is not there (yet), and for null.
HWND ShellViewOf(HWND frame);
HWND ShellListIn(HWND view);
bool IsShellView(HWND wnd);

// Sends the list's custom draw back to the list, and spares the view questions that it has answered already.
class CShellView : public CWnd {
    DECLARE_DYNAMIC(CShellView)

  public:
    CShellView();
    ~CShellView() override;

    CListAnswers& Answers() { return m_answers; }

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    LRESULT OnListNotify(WPARAM wParam, LPARAM lParam);
    LRESULT Answer(WPARAM wParam, LPARAM lParam);

    CListAnswers m_answers;
};

} // namespace _qv_commonwnd
