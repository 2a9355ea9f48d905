// QVSkinImage.h: a decoded image of the skin.
#pragma once

#include "paint/Pixels.h"
#include "QVSkin.h"

#include <memory>

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

} // namespace _qv_commonctrl
