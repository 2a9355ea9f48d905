// GalleryContext.h: what an entry of the gallery may use while it runs.
#pragma once

#include <QVCommonWnd.h>
#include <QVDict.h>
#include <QVSkin.h>

class IGalleryContext {
  public:
    virtual ~IGalleryContext() = default;
    // The gallery's main window, the parent for the windows that take one.
    virtual CWnd* MainWnd() = 0;
    // A folder with real files (pictures, sound, text, a layered document); without a trailing backslash.
    virtual CString SampleFolder() = 0;
    // Adds one line to the result list and to the log file: what was answered, by name.
    virtual void Report(LPCWSTR name, const CString& value) = 0;

    void ReportNumber(LPCWSTR name, LONGLONG value);
    // Whether a window's run ended with OK. The other ends are reported under its name.
    bool Confirmed(LPCWSTR name, INT_PTR end);
};
