#include "SkinPicture.h"

#include <map>
#include <string>
#include <tuple>

namespace _qv_commonctrl {

namespace {

class KeptPictures {
  public:
    static KeptPictures& Get() {
        static KeptPictures pictures;
        return pictures;
    }

    const CQVSkinImage* Find(const wchar_t* relativePath, int type, UINT dpi) {
        if (m_generation != QV_GetSkinGeneration()) {
            Drop();
            m_generation = QV_GetSkinGeneration();
        }
        const auto [place, isNew] = m_images.try_emplace(Key(relativePath, type, dpi), nullptr);
        if (isNew)
            place->second = Load(relativePath, type, dpi);
        return place->second;
    }

    void Drop() {
        for (auto& [key, image] : m_images)
            QV_ReleaseCommonRes(image);
        m_images.clear();
    }

    ~KeptPictures() { m_images.clear(); } // the image cache itself ends with the DLL, too

  private:
    using Key = std::tuple<std::wstring, int, UINT>;

    static CQVSkinImage* Load(const wchar_t* relativePath, int type, UINT dpi) {
        const CString path = QV_GetSkinPath() + L"\\" + relativePath;
        CQVSkinImage* image = QV_LoadImageEx(path, type, 0, 0);
        if (!image || dpi == 0 || dpi == USER_DEFAULT_SCREEN_DPI)
            return image;
        const CSize size = QV_GetImageSize(image);
        QV_ReleaseCommonRes(image);
        return QV_LoadImageEx(path, type, QV_ScaleForDpi(size.cx, dpi), QV_ScaleForDpi(size.cy, dpi));
    }

    std::map<Key, CQVSkinImage*> m_images;
    UINT m_generation = 0;
};

} // namespace

SkinPicture::SkinPicture(const wchar_t* relativePath, int type, UINT dpi)
    : m_image(KeptPictures::Get().Find(relativePath, type, dpi)) {
}

void DropSkinPictures() {
    KeptPictures::Get().Drop();
}

} // namespace _qv_commonctrl
