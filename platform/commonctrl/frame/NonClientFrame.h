// NonClientFrame.h: the skinned non-client area of one window.
#pragma once

#include "AnchoredChildren.h"
#include "QVCaptionBand.h"

namespace _qv_commonctrl {

// Caption band, hairlines and close button, and the children that follow the client area.
class NonClientFrame {
  public:
    NonClientFrame() = default;
    NonClientFrame(const NonClientFrame&) = delete;
    NonClientFrame& operator=(const NonClientFrame&) = delete;
    ~NonClientFrame() { StopFollowing(); }

    // Takes the frame over, keeping the size of the client area.
    void Attach(HWND wnd);
    void Detach();
    HWND Window() const { return m_wnd; }

    bool Handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    CRect Edges() const;

    void SetAutoSize(bool enable, HWND host);
    void RegisterChild(HWND child, int mode, DWORD flags);

  private:
    enum class Kind { None, FrameOnly, Caption };
    enum class PaintPart { All, CloseButton };

    static Kind KindOf(DWORD style);
    void FitToClient(CSize client) const;
    static LRESULT CALLBACK FollowProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                       DWORD_PTR self);
    void StopFollowing();
    // Several frames may follow one window.
    UINT_PTR FollowId() const { return reinterpret_cast<UINT_PTR>(this); }
    bool HandleMouse(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    bool OnNcButtonDown(WPARAM hitCode, LPARAM screenPoint);
    bool OnCapturedMouse(UINT message, LPARAM clientPoint);
    bool HitTest(CPoint screen, LRESULT& result) const;
    LRESULT SizingHit(CPoint point) const;
    void TrackLeave() const;
    void Paint(PaintPart part);
    void PaintCloseIf(BOOL changed);
    bool IsClosable() const;
    bool HasCloseButton() const;
    HWND AnchorHost() const { return m_anchorHost ? m_anchorHost : m_wnd; }

    UINT Dpi() const { return QV_GetWindowDpi(m_wnd); }
    CRect WindowArea() const; // the window's rectangle, moved to (0, 0)
    CPoint ToWindow(CPoint screen) const;

    HWND m_wnd = nullptr;
    Kind m_kind = Kind::None;
    bool m_active = false;
    bool m_paintedClosable = true;
    CQVCaptionBand m_band;
    AnchoredChildren m_children;
    HWND m_anchorHost = nullptr; // another window than the frame's; subclassed for its changes of size
    bool m_autoSize = false;
};

} // namespace _qv_commonctrl
