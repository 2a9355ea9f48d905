// ResultLog.h: the gallery's results as lines of a UTF-8 file, for a program that watches the gallery from outside.
#pragma once

#include <afxwin.h>

class CResultLog {
  public:
    // Opens (and empties) the file. An empty name, or one that cannot be written, makes the log do nothing.
    explicit CResultLog(const CString& fileName);
    CResultLog(const CResultLog&) = delete;
    CResultLog& operator=(const CResultLog&) = delete;
    ~CResultLog();

    // Appends "name<TAB>value" and hands it to the system at once; line breaks in `value` become spaces.
    void Write(LPCWSTR name, CString value);

  private:
    HANDLE m_hFile = INVALID_HANDLE_VALUE;
};
