// Where the meters of a face stand; plain values, no window.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

// One group of meters, client pixels.
struct VUGroup {
    int count = 0;      // 0: nothing of the group is shown
    CPoint scale;       // top-left corner of its dB scale
    CPoint title;       // of its title
    CPoint label;       // of the first channel label
    CRect firstMeter;   // the others follow at the pitch
    CPoint firstButton; // of the button above the first meter
    int pitch = 0;      // from one channel to the next
};

// The groups from left to right, and the width that they take.
class CVUFaceLayout {
  public:
    CVUFaceLayout() = default;
    CVUFaceLayout(int inputs, int tracks, int outputs, UINT dpi);

    VUGroup input;
    VUGroup track;
    VUGroup output;
    int width = 0; // of the whole content, pixels

  private:
    int Place(VUGroup& group, int count, int x, UINT dpi);
};

// Whether a face of these counts can be shown: none negative, none above the most of CQVVUFrame.
bool IsFacePossible(long inputs, long tracks, long outputs);

// The rounded panel of a group of `count` meters whose left edge is at `left`, in a client area of this
// height.
CRect VUPanel(int left, int count, int clientHeight, UINT dpi);

// Where meters and scales end in a client area of this height.
int VUFoot(int clientHeight, UINT dpi);

// The dB scale of a group in a client area of this height.
CRect VUScale(const VUGroup& group, int clientHeight, UINT dpi);

// The row, in client pixels, of a mark's tick on a scale that fills `top` to `bottom`: the nearest one, since
// a fraction cut off would bring the figures of two marks together in the lowest window.
int VUMarkY(int markDb, int top, int bottom);

} // namespace _qv_commonwnd
