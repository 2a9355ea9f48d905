// The walk along the names that a file dialog leaves in its buffer.
#include "ChosenNames.h"

#include <algorithm>
#include <cwchar>
#include <utility>

ChosenNames::ChosenNames(const OPENFILENAME& ofn)
    : m_first(ofn.lpstrFile), m_end(ofn.lpstrFile ? ofn.lpstrFile + ofn.nMaxFile : nullptr),
      m_isList((ofn.Flags & OFN_ALLOWMULTISELECT) && First() && Holds(Next(m_first))) {
}

LPCTSTR ChosenNames::Next(LPCTSTR at) const {
    return std::min<LPCTSTR>(at + NameAt(at).GetLength() + 1, m_end);
}

CString ChosenNames::NameAt(LPCTSTR at) const {
    return CString(at, static_cast<int>(wcsnlen(at, static_cast<size_t>(m_end - at))));
}

CString ChosenNames::TakePath(LPCTSTR& at) const {
    LPCTSTR place = std::exchange(at, nullptr);
    if (!Holds(place))
        return CString();
    CString path = NameAt(m_first);
    if (!m_isList)
        return path;
    if (place == m_first)
        place = Next(m_first);
    if (path.Right(1) != L"\\")
        path += L"\\";
    path += NameAt(place);
    const LPCTSTR following = Next(place);
    if (Holds(following))
        at = following;
    return path;
}
