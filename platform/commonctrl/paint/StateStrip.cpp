#include "StateStrip.h"

#include "module/Guards.h"

#include <bit>

namespace _qv_commonctrl {

bool StateStrip::Load(LPCWSTR path, int states, UINT dpi) {
    Clear();
    m_path = path ? path : L"";
    m_states = states & QVIMAGE_HAS_ALL;
    return m_states != 0 && Reload(dpi);
}

bool StateStrip::Reload(UINT dpi) {
    QV_ReleaseCommonRes(m_image);
    if (m_path.IsEmpty())
        return false;
    // The whole strip is one picture, so that any number of frames will do.
    m_image = QV_LoadImageEx(m_path, QVIMAGE_SINGLE, 0, 0);
    if (m_image && dpi != USER_DEFAULT_SCREEN_DPI) {
        const CSize natural = QV_GetImageSize(m_image);
        const int frames = FrameCount();
        const int width = QV_ScaleForDpi(natural.cx / frames, dpi) * frames;
        QV_ReleaseCommonRes(m_image);
        m_image = QV_LoadImageEx(m_path, QVIMAGE_SINGLE, width, QV_ScaleForDpi(natural.cy, dpi));
    }
    return m_image != nullptr;
}

void StateStrip::Clear() {
    QV_ReleaseCommonRes(m_image);
    m_path.Empty();
    m_states = 0;
}

int StateStrip::FrameCount() const {
    return std::popcount(static_cast<unsigned>(m_states));
}

int StateStrip::FrameOf(ControlState state) const {
    const unsigned bit = 1u << static_cast<unsigned>(state);
    const auto states = static_cast<unsigned>(m_states);
    return states & bit ? std::popcount(states & (bit - 1)) : 0;
}

CSize StateStrip::FrameSize() const {
    const CSize strip = QV_GetImageSize(m_image);
    return m_image ? CSize(strip.cx / FrameCount(), strip.cy) : CSize();
}

void StateStrip::Draw(CDC* dc, ControlState shown, int x, int y) const {
    if (!m_image)
        return;
    const CSize frame = FrameSize();
    const DcState state(*dc);
    dc->IntersectClipRect(x, y, x + frame.cx, y + frame.cy);
    QV_DrawImage(dc, m_image, 0, x - FrameOf(shown) * frame.cx, y);
}

} // namespace _qv_commonctrl
