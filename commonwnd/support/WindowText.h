// Small things that the dialogs do to their controls.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

// A window's whole text; empty for null or no window.
CString WindowTextOf(const CWnd* wnd);

// What DrawText needs for a text in a control's own font with the given DT_* flags; (0, 0) for an empty text
// or no window.
CSize MeasureTextIn(HWND control, const CString& text, UINT format);

// Where a child stands, client pixels of its parent; empty when there is no such child.
CRect ChildRect(const CWnd& parent, int id);

// Gives a static whose text is the host's the skin's label style; an & in the text is shown as it is. Null,
// or a control that is no skinned static, is left alone.
void UseLabelStyle(CWnd* control);

// The left-most, top-most `size` of a window becomes its new size; it stays where it is.
void ResizeInPlace(CWnd& wnd, CSize size);

} // namespace _qv_commonwnd
