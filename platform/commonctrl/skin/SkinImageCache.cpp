#include "SkinImageCache.h"

#include "ImageCodec.h"
#include "SkinStore.h"

#include <algorithm>
#include <cwctype>

namespace _qv_commonctrl {

namespace {

std::wstring NormalPath(const std::wstring& path) {
    std::wstring normal;
    for (const wchar_t c : path) {
        const wchar_t unit = c == L'/' ? L'\\' : static_cast<wchar_t>(std::towlower(c));
        const bool doubled = unit == L'\\' && normal.size() > 1 && normal.back() == L'\\';
        if (!doubled)
            normal.push_back(unit);
    }
    return normal;
}

// The part of a path below the current skin's folder; empty when it is elsewhere.
std::wstring RelativeToSkin(const std::wstring& normalPath) {
    const std::wstring folder = NormalPath(SkinStore::Get().Folder()) + L"\\";
    return normalPath.starts_with(folder) ? normalPath.substr(folder.size()) : std::wstring();
}

Pixels DecodeWithFallback(const std::wstring& path, const std::wstring& normalPath) {
    Pixels pixels = DecodeImageFile(path);
    if (!pixels.IsEmpty())
        return pixels;
    const std::wstring relative = RelativeToSkin(normalPath);
    if (!relative.empty())
        pixels = DecodeImageBytes(FindBuiltInFile(relative));
    SkinStore::Get().ReportOnce(L"no image in " + path +
                                (pixels.IsEmpty() ? L"" : L": the default skin's is used"));
    return pixels;
}

} // namespace

SkinImageCache& SkinImageCache::Get() {
    static SkinImageCache cache;
    return cache;
}

CQVSkinImage* SkinImageCache::Load(const std::wstring& path, int frames, int cx, int cy) {
    const std::wstring normal = NormalPath(path);
    const Key key(SkinStore::Get().Generation(), normal, frames, cx, cy);
    if (const auto found = m_entries.find(key); found != m_entries.end()) {
        ++found->second.users;
        return found->second.image.get();
    }
    Pixels strip = DecodeWithFallback(path, normal);
    if (strip.width < frames)
        return nullptr;
    const int frameWidth = cx > 0 ? cx : strip.width / frames;
    const int height = cy > 0 ? cy : strip.height;
    if (frameWidth * frames != strip.width || height != strip.height)
        strip = ResizeFrames(strip, frames, frameWidth, height);
    if (strip.IsEmpty())
        return nullptr;
    std::unique_ptr<CQVSkinImage> image = CQVSkinImage::Make(strip, frames);
    if (!image)
        return nullptr;
    Entry& entry = m_entries[key];
    entry.image = std::move(image);
    entry.users = 1;
    return entry.image.get();
}

void SkinImageCache::Release(CQVSkinImage* image) {
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [image](const auto& item) { return item.second.image.get() == image; });
    if (found != m_entries.end() && --found->second.users == 0)
        m_entries.erase(found);
}

} // namespace _qv_commonctrl
