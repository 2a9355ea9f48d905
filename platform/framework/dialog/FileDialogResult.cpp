// CFileDialog: the chosen names, while the dialog runs and after.
#include "afxdlgs.h"

#include <algorithm>
#include <cwchar>

namespace {

// Lists of names: each ends with a NUL, the list with an empty one, and never beyond the buffer.
class NameList {
  public:
    explicit NameList(const OPENFILENAME& ofn)
        : m_first(ofn.lpstrFile), m_end(ofn.lpstrFile ? ofn.lpstrFile + ofn.nMaxFile : nullptr) {}

    LPCTSTR First() const { return m_first; }
    bool Holds(LPCTSTR at) const { return m_first && at >= m_first && at < m_end && *at; }
    int Length(LPCTSTR at) const { return static_cast<int>(wcsnlen(at, static_cast<size_t>(m_end - at))); }
    LPCTSTR Next(LPCTSTR at) const { return std::min<LPCTSTR>(at + Length(at) + 1, m_end); }
    CString Text(LPCTSTR at) const { return Holds(at) ? CString(at, Length(at)) : CString(); }

  private:
    LPCTSTR m_first;
    LPCTSTR m_end;
};

CString NameOf(const CString& path) {
    return path.Mid(path.ReverseFind(L'\\') + 1);
}

POSITION PositionOf(LPCTSTR at) {
    return reinterpret_cast<POSITION>(const_cast<LPTSTR>(at));
}

} // namespace

// The answer of the running dialog to one of its CDM_GET... messages, whatever its length.
CString CFileDialog::AskDialog(UINT message) const {
    CString answer;
    const HWND frame = ::GetParent(m_hWnd);
    for (LRESULT chars = MAX_PATH;;) {
        const LPTSTR buffer = answer.GetBuffer(static_cast<int>(chars));
        *buffer = L'\0';
        const LRESULT needed =
            ::SendMessageW(frame, message, static_cast<WPARAM>(chars), reinterpret_cast<LPARAM>(buffer));
        if (needed <= chars) {
            answer.ReleaseBuffer(needed > 0 ? -1 : 0);
            return answer;
        }
        answer.ReleaseBuffer(0);
        chars = needed;
    }
}

CString CFileDialog::GetPathName() const {
    if (m_hWnd)
        return AskDialog(CDM_GETFILEPATH);
    POSITION pos = GetStartPosition();
    return pos ? GetNextPathName(pos) : CString();
}

CString CFileDialog::GetFileName() const {
    return m_hWnd ? AskDialog(CDM_GETSPEC) : NameOf(GetPathName());
}

CString CFileDialog::GetFileExt() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? CString() : name.Mid(dot + 1);
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFileDialog::GetFolderPath() const {
    return m_hWnd ? AskDialog(CDM_GETFOLDERPATH) : CString();
}

POSITION CFileDialog::GetStartPosition() const {
    const NameList names(m_ofn);
    return names.Holds(names.First()) ? PositionOf(names.First()) : nullptr;
}

// One file: its path. Several: the folder, then the names. A position is the place in the buffer.
CString CFileDialog::GetNextPathName(POSITION& pos) const {
    const NameList names(m_ofn);
    LPCTSTR at = reinterpret_cast<LPCTSTR>(pos);
    pos = nullptr;
    if (!names.Holds(at))
        return CString();
    const LPCTSTR second = names.Next(names.First());
    const bool isList = (m_ofn.Flags & OFN_ALLOWMULTISELECT) && names.Holds(second);
    if (!isList)
        return names.Text(names.First());
    if (at == names.First())
        at = second;
    CString path = names.Text(names.First());
    if (path.Right(1) != L"\\")
        path += L"\\";
    path += names.Text(at);
    const LPCTSTR following = names.Next(at);
    if (names.Holds(following))
        pos = PositionOf(following);
    return path;
}
