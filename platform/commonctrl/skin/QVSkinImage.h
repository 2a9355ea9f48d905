// QVSkinImage.h: decoded images of the skin, shared by all who load the same file.
#pragma once

#include "paint/QVPixels.h"
#include "QVSkin.h"

#include <map>
#include <memory>
#include <string>
#include <tuple>

namespace _qv_commonctrl {

// A strip of frames as a bitmap that the system can blend. Owned by the image cache.
class CQVSkinImage {
  public:
    // Null when the system has no memory for it.
    static std::unique_ptr<CQVSkinImage> Make(const Pixels& strip, int frames);
    ~CQVSkinImage();
    CQVSkinImage(const CQVSkinImage&) = delete;
    CQVSkinImage& operator=(const CQVSkinImage&) = delete;

    CSize FrameSize() const { return {m_stripWidth / m_frames, m_height}; }
    void Draw(HDC dc, int frame, int x, int y) const;

  private:
    CQVSkinImage(HBITMAP bitmap, int width, int height, int frames)
        : m_bitmap(bitmap), m_stripWidth(width), m_height(height), m_frames(frames) {}

    HBITMAP m_bitmap;
    int m_stripWidth;
    int m_height;
    int m_frames;
};

// Counts the users of each image and drops it with the last one.
class SkinImageCache {
  public:
    static SkinImageCache& Get();

    // Null when neither the file nor a built-in one of the same relative path can be decoded.
    CQVSkinImage* Load(const std::wstring& path, int frames, int cx, int cy);
    void Release(CQVSkinImage* image);
    std::size_t Count() const { return m_entries.size(); }

  private:
    using Key = std::tuple<UINT, std::wstring, int, int, int>; // skin generation, path, frames, cx, cy
    struct Entry {
        std::unique_ptr<CQVSkinImage> image;
        int users = 0;
    };

    std::map<Key, Entry> m_entries;
};

} // namespace _qv_commonctrl
