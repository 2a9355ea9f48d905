// QVMemoDC.h: composes a picture in memory and copies it to the target once, when the object dies.
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

class QVCOMMONCTRL_API CQVMemoDC : public CDC {
  public:
    // A picture of `rect` (logical co-ordinates of `target`, which the picture shares). Only the part inside
    // the target's clip box is copied. Drawing goes straight to `target` when no memory bitmap can be had or
    // the target does not count in pixels (map mode other than MM_TEXT). The picture's memory is kept for the
    // next object, so that painting does not ask the system for a bitmap each time; a null target is allowed
    // and draws nowhere. The context starts with the target's font.
    CQVMemoDC(CDC* target, const CRect& rect);
    CQVMemoDC(const CQVMemoDC&) = delete;
    CQVMemoDC& operator=(const CQVMemoDC&) = delete;
    // Copies the picture (SRCCOPY) unless Cancel or a Copy function was called.
    ~CQVMemoDC() override;

    // Copies now, leaving pixels of colour `key` of the target as they are.
    void CopyTransparent(COLORREF key);
    // Copies nothing when the object dies.
    void Cancel();

  private:
    // Where the picture is composed.
    enum class Surface { Shared, Own, Target };

    bool OpenSurface();
    void CloseSurface();
    bool HasPicture() const; // one that is still to be copied
    void CopyPlain();

    CDC* m_pTarget;
    CRect m_rect; // what is composed and copied: the rectangle inside the target's clip box
    Surface m_surface = Surface::Target;
    int m_savedState = 0;
    HBITMAP m_hBitmap = nullptr; // Own: the picture
    HGDIOBJ m_hFormerBitmap = nullptr;
    bool m_bCopied = false;
};

} // namespace _qv_commonctrl
