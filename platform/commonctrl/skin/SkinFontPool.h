// SkinFontPool.h: the font objects of the skin.
#pragma once

#include "QVCommonCtrlDef.h"

#include <map>
#include <memory>
#include <string>
#include <tuple>

namespace _qv_commonctrl {

// Makes each font once and keeps it: windows hold the handles they were given by WM_SETFONT beyond a change
// of skin. There are only as many as there are different faces, heights and weights.
class SkinFontPool {
  public:
    static SkinFontPool& Get();

    // Never null. An unknown index gives the UI font, 0 for the DPI 96.
    CFont* Find(int index, UINT dpi);

  private:
    using Shape = std::tuple<std::wstring, LONG, LONG>; // face, height in pixels, weight
    using Request = std::pair<int, UINT>;               // index, DPI
    using State = std::pair<UINT, UINT>;                // generations of skin and language

    CFont* Make(int index, UINT dpi);
    CFont* OfShape(const Shape& shape);

    std::map<Shape, std::unique_ptr<CFont>> m_fonts;
    std::map<Request, CFont*> m_answers; // of one state
    State m_state;
};

} // namespace _qv_commonctrl
