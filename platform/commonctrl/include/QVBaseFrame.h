// QVBaseFrame.h: the skinned frame of a dialog (caption band, close button, border) and its anchored
// children.
#pragma once

#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

// How a registered child follows its frame's client area when that is resized (the `mode` of SetChildWindow).
enum QVAnchorMode : int {
    QVANCHOR_TOP_LEFT = 0,     // stays where it is
    QVANCHOR_TOP_RIGHT = 1,    // keeps its distance to the right edge
    QVANCHOR_BOTTOM_LEFT = 2,  // keeps its distance to the bottom edge
    QVANCHOR_BOTTOM_RIGHT = 4, // keeps its distance to the right and bottom edges
    QVANCHOR_FILL = 8,         // keeps its distance to all four edges
};

// Further flags of SetChildWindow. With neither, QVANCHOR_FILL sizes the child and the other modes move it.
enum QVAnchorFlags : DWORD {
    QVANCHOR_KEEP_SIZE = 0x40000, // the child is moved, never sized (QVANCHOR_FILL: it stays where it is)
    QVANCHOR_RESIZE = 0x80000,    // the child is sized: it keeps its distance to the opposite edges, too
};

// Where a child belongs that stood at `rect` while the client area had the size `from`, now that it has the
// size `to`. Pixels; never narrower or lower than 0. An unknown mode stays. Any thread.
QVCOMMONCTRL_API CRect QV_GetAnchoredRect(const CRect& rect, CSize from, CSize to, int mode, DWORD flags);

// A mix-in beside CDialog. It takes over the non-client area: a caption band, a two-colour hairline frame
// and, for a window with a system menu, a close button, painted by the skin in place of the system's. A
// window without a caption gets the frame only, a child without a border style gets none. The close button is
// greyed while SC_CLOSE is disabled in the system menu or the window is disabled. WS_CAPTION is taken from
// the window's style, so that the system never paints a frame of its own; a window with WS_THICKFRAME is
// sized by its edges. Windows with a menu bar are not supported.
class QVCOMMONCTRL_API CQVBaseFrame : public CQVBaseCtrl {
  public:
    CQVBaseFrame();
    ~CQVBaseFrame() override;

    // Switches the following of registered children on or off. `wnd` is the window whose client area they
    // follow (null: the frame's own window); `flags` is reserved, 0.
    void SetAutoSize(BOOL enable, CWnd* wnd, DWORD flags);

    // Registers a child with the rectangle it has now; a second call for the same child replaces the first.
    // A null or foreign window is ignored. The handle is dropped as soon as the child is destroyed.
    void SetChildWindow(CWnd* child, int mode, DWORD flags);

    // Widths in pixels of the skinned frame round the client area at the window's DPI: left and right edges,
    // top (edge and caption band) and bottom.
    CRect GetFrameEdges() const;

  protected:
    // To be called by the window class that mixes the frame in. HandleFrameMessage gets every message before
    // the window class does; TRUE means handled and `result` is the answer.
    void AttachFrame(CWnd* wnd);
    void DetachFrame();
    BOOL HandleFrameMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

  private:
    class NonClientFrame* m_pFrame;
};

} // namespace _qv_commonctrl
