// SkinImageCache.h: the decoded images, shared by all who load the same file.
#pragma once

#include "QVSkinImage.h"

#include <map>
#include <string>
#include <tuple>

namespace _qv_commonctrl {

// Counts the users of each image and drops it with the last one.
class SkinImageCache {
  public:
    static SkinImageCache& Get();

    // Null when neither the file nor a built-in one of the same relative path can be decoded.
    CQVSkinImage* Load(const std::wstring& path, int frames, int cx, int cy);
    void Release(CQVSkinImage* image);

  private:
    using Key = std::tuple<UINT, std::wstring, int, int, int>; // skin generation, path, frames, cx, cy
    struct Entry {
        std::unique_ptr<CQVSkinImage> image;
        int users = 0;
    };

    std::map<Key, Entry> m_entries;
};

} // namespace _qv_commonctrl
