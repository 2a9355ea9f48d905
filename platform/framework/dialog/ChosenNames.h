// The names that a file dialog leaves in its buffer.
#pragma once

#include "afx/String.h"
#include <commdlg.h>

// Each name ends with a NUL, the list with an empty one, and never beyond the buffer. One file: its path.
// Several: the folder, then the names. A place in the list is an address in the buffer.
class ChosenNames {
  public:
    explicit ChosenNames(const OPENFILENAME& ofn);

    // Null when nothing was chosen.
    LPCTSTR First() const { return Holds(m_first) ? m_first : nullptr; }
    // The path of the file at a place, which moves to the next file, to null behind the last one. Empty, and
    // null, for a place that is none.
    CString TakePath(LPCTSTR& at) const;

  private:
    bool Holds(LPCTSTR at) const { return m_first && at >= m_first && at < m_end && *at; }
    LPCTSTR Next(LPCTSTR at) const;
    CString NameAt(LPCTSTR at) const;

    LPCTSTR m_first;
    LPCTSTR m_end;
    bool m_isList;
};
