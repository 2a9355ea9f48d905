// The shell's view inside the file dialog: the owner of the list.
#pragma once

#include "ListAnswers.h"

#include <afxwin.h>

namespace _qv_commonwnd {

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
