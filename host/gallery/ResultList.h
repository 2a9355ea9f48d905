// ResultList.h: the gallery's list of answers: which window, what came back.
#pragma once

#include <afxwin.h>

// Stands over a list control of the gallery's template, which it does not own.
class CResultList {
  public:
    // Makes the columns; from then on rows may be added.
    void Attach(HWND list);
    // Heads in the current language.
    void ShowTexts();
    // Adds a row and scrolls to it.
    void Add(LPCWSTR window, const CString& answer);

  private:
    void AddColumn(int column, int width);

    HWND m_list = nullptr;
};
