#include "QVSkin.h"

#include "CjkText.h"
#include "QVSkinImage.h"
#include "scroll/ScrollSkin.h"
#include "SkinBrushPool.h"
#include "SkinFontPool.h"
#include "SkinImageCache.h"
#include "SkinnedWindows.h"
#include "SkinPicture.h"
#include "SkinStore.h"

#include <algorithm>
#include <exception>

namespace _qv_commonctrl {

namespace {

constexpr COLORREF kUnknownColor = RGB(0xFF, 0x00, 0xFF);

COLORREF ToColorRef(uint32_t rgb) {
    return RGB((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF);
}

} // namespace

BOOL QV_SetSkinPath(LPCWSTR folder) {
    bool chosen = false;
    try {
        chosen = SkinStore::Get().Select(folder ? folder : L"");
    } catch (const std::exception&) { // memory ran out: what was read stays
    }
    DropSkinPictures();
    BroadcastSkinChange();
    ScrollSkin::RefreshAll();
    return chosen;
}

CString QV_GetSkinPath() {
    return SkinStore::Get().Folder().c_str();
}

UINT QV_GetSkinGeneration() {
    return SkinStore::Get().Generation();
}

COLORREF QV_GetSysColor(int index) {
    const uint32_t* rgb = SkinStore::Get().Color(index);
    return rgb ? ToColorRef(*rgb) : kUnknownColor;
}

CFont* QV_GetSysFont(int index, UINT dpi) {
    return SkinFontPool::Get().Find(index, dpi);
}

int QV_GetFontIndex(LPCWSTR text) {
    if (!text || !*text)
        return QVFONT_UI;
    return HasCjkCharacter(text) ? QVFONT_UI_CJK : QVFONT_UI_LATIN;
}

HBRUSH QV_GetSysBrush(int index) {
    const int* color = SkinStore::Get().BrushColor(index);
    return SkinBrushPool::Get().Find(color ? QV_GetSysColor(*color) : kUnknownColor);
}

CPen* QV_LoadPen(int id) {
    const SkinPen* pen = SkinStore::Get().Pen(id);
    return pen ? new CPen(PS_SOLID, pen->widthPx, ToColorRef(pen->rgb))
               : new CPen(PS_SOLID, 1, kUnknownColor);
}

CQVSkinImage* QV_LoadImageEx(LPCWSTR path, int type, int cx, int cy) {
    constexpr int kStateFrames = 4;
    if (!path || !*path || cx < 0 || cy < 0 || cx > kMaxImageSidePx || cy > kMaxImageSidePx)
        return nullptr;
    try {
        return SkinImageCache::Get().Load(path, type == QVIMAGE_STATES ? kStateFrames : 1, cx, cy);
    } catch (const std::exception&) { // memory ran out
        return nullptr;
    }
}

void QV_ReleaseCommonRes(CPen*& pen) {
    delete pen;
    pen = nullptr;
}

void QV_ReleaseCommonRes(CQVSkinImage*& image) {
    if (image)
        SkinImageCache::Get().Release(image);
    image = nullptr;
}

CSize QV_GetImageSize(const CQVSkinImage* image) {
    return image ? image->FrameSize() : CSize(0, 0);
}

void QV_DrawImage(CDC* dc, const CQVSkinImage* image, int frame, int x, int y) {
    if (dc && dc->GetSafeHdc() && image)
        image->Draw(dc->GetSafeHdc(), frame, x, y);
}

COLORREF QV_LightenColor(COLORREF color) {
    constexpr int kStep = 30;
    constexpr int kFull = 255;
    const int red = GetRValue(color);
    const int green = GetGValue(color);
    const int blue = GetBValue(color);
    const int raise = kStep * (kFull - std::min({red, green, blue})) / kFull;
    return RGB(std::min(red + raise, kFull), std::min(green + raise, kFull), std::min(blue + raise, kFull));
}

} // namespace _qv_commonctrl
