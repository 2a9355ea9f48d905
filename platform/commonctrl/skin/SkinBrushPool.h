// SkinBrushPool.h: solid brushes in the colours of the skin.
#pragma once

#include <windows.h>

#include <map>

namespace _qv_commonctrl {

// Brushes by colour. Windows keep the handle that they answered WM_CTLCOLOR with until they repaint, so the
// brushes of the former skin live until the skin changes once more.
class SkinBrushPool {
  public:
    static SkinBrushPool& Get();
    ~SkinBrushPool();

    HBRUSH Find(COLORREF color);

  private:
    using Brushes = std::map<COLORREF, HBRUSH>;

    static void Drop(Brushes& brushes);

    Brushes m_brushes;
    Brushes m_former;
    UINT m_generation = 0;
};

// A brush of any colour of the skin, owned by the pool.
HBRUSH SkinColorBrush(int colorIndex);

} // namespace _qv_commonctrl
