// StateStrip.h: an image file that holds a control's states side by side.
#pragma once

#include "PaintKit.h"

namespace _qv_commonctrl {

class StateStrip {
  public:
    StateStrip() = default;
    StateStrip(const StateStrip&) = delete;
    StateStrip& operator=(const StateStrip&) = delete;
    ~StateStrip() { Clear(); }

    // `states` is a set of QVImageStates, at least one. False, and no image, when the file cannot be loaded.
    bool Load(LPCWSTR path, int states, UINT dpi);
    // Reads the same file again.
    bool Reload(UINT dpi);
    void Clear();

    bool IsLoaded() const { return m_image != nullptr; }
    CSize FrameSize() const; // pixels at the DPI
    // A state that the strip lacks is drawn as normal (the first frame).
    void Draw(CDC* dc, ControlState state, int x, int y) const;

  private:
    int FrameCount() const;
    int FrameOf(ControlState state) const;

    CQVSkinImage* m_image = nullptr;
    CString m_path;
    int m_states = 0;
};

} // namespace _qv_commonctrl
