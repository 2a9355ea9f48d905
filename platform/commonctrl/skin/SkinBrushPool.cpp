#include "SkinBrushPool.h"

#include "QVSkin.h"

namespace _qv_commonctrl {

SkinBrushPool& SkinBrushPool::Get() {
    static SkinBrushPool pool;
    return pool;
}

HBRUSH SkinBrushPool::Find(COLORREF color) {
    if (m_generation != QV_GetSkinGeneration()) {
        Drop(m_former);
        m_former.swap(m_brushes);
        m_generation = QV_GetSkinGeneration();
    }
    HBRUSH& brush = m_brushes[color];
    if (!brush)
        brush = CreateSolidBrush(color);
    return brush;
}

void SkinBrushPool::Drop(Brushes& brushes) {
    for (const auto& [color, brush] : brushes)
        DeleteObject(brush);
    brushes.clear();
}

SkinBrushPool::~SkinBrushPool() {
    Drop(m_former);
    Drop(m_brushes);
}

HBRUSH SkinColorBrush(int colorIndex) {
    return SkinBrushPool::Get().Find(QV_GetSysColor(colorIndex));
}

} // namespace _qv_commonctrl
