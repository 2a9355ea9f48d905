// Straightens the rows of a small dialog once its texts stand: template figures round differently from row to
// row, and a text of another language may be wider than the one the template was drawn for.
#pragma once

#include <afxwin.h>

#include <initializer_list>

namespace _qv_commonwnd {

// Moves the controls up or down so that their middles stand at the height of the reference's middle. Statics
// put their text in their own middle from then on. Ids without a control are left out; nothing moves without
// the reference.
void AlignRow(CWnd& dialog, int reference, std::initializer_list<int> ids);

// Aligns each visible label with the field on its right that shares its row.
void AlignLabelsWithFields(CWnd& dialog);

// Widens the labels whose text is wider than they are; all that stands right of them and the push buttons
// move on, and the window grows by as much, at most 400 pixels for one label. Labels that fit change nothing.
void MakeRoomForLabels(CWnd& dialog);

} // namespace _qv_commonwnd
