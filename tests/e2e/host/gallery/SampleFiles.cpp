#include "SampleFiles.h"

#include "Picture.h"

#include <cmath>
#include <cstdint>
#include <fstream>
#include <filesystem>
#include <numbers>
#include <vector>

namespace gallery {

namespace {

void append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

// A picture's pixels by way of a bitmap, so that the system's codecs write a real file.
HBITMAP makeBitmap(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    auto* pixels = static_cast<std::uint32_t*>(bits);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double down = static_cast<double>(y) / height;
            const auto red = static_cast<std::uint32_t>(60 + 180 * down);
            const auto blue = static_cast<std::uint32_t>(200 - 120 * down);
            const bool ground = y > height * 2 / 3 + static_cast<int>(height * 0.05 * std::sin(x * 0.05));
            pixels[y * width + x] = ground ? 0xFF203028u : 0xFF000000u | red << 16 | 0x60u << 8 | blue;
        }
    }
    return bitmap;
}

// The level of a swelling sound at a place from 0 to 1 of its length, between nothing and more than twice the steady one.
double swell(int channel, double place) {
    const double wave = std::sin(std::numbers::pi * (3 + 2 * channel) * place);
    return 2.5 * wave * wave * (0.35 + 0.65 * std::sin(std::numbers::pi * place));
}

} // namespace

void writePicture(const std::wstring& path, int widthPx, int heightPx) {
    const HBITMAP bitmap = makeBitmap(widthPx, heightPx);
    qvtest::Picture::ofBitmap(bitmap).save(path);
    ::DeleteObject(bitmap);
}

void writeSound(const std::wstring& path, int channels, int samplesPerSecond, double seconds,
                Loudness loudness) {
    const int frames = static_cast<int>(samplesPerSecond * seconds);
    std::string data;
    for (int i = 0; i < frames; ++i) {
        for (int channel = 0; channel < channels; ++channel) {
            const double angle = 2 * std::numbers::pi * 440.0 * (channel + 1) * i / samplesPerSecond;
            const double level =
                12000 * (loudness == Loudness::Steady ? 1.0 : swell(channel, 1.0 * i / frames));
            append(data, static_cast<std::uint32_t>(static_cast<std::int16_t>(level * std::sin(angle))), 2);
        }
    }
    const auto blockAlign = static_cast<std::uint32_t>(channels * 2);
    std::string file = "RIFF";
    append(file, static_cast<std::uint32_t>(36 + data.size()), 4);
    file += "WAVEfmt ";
    append(file, 16, 4);
    append(file, 1, 2); // PCM
    append(file, static_cast<std::uint32_t>(channels), 2);
    append(file, static_cast<std::uint32_t>(samplesPerSecond), 4);
    append(file, static_cast<std::uint32_t>(samplesPerSecond) * blockAlign, 4);
    append(file, blockAlign, 2);
    append(file, 16, 2); // bits a sample
    file += "data";
    append(file, static_cast<std::uint32_t>(data.size()), 4);
    file += data;
    std::ofstream(std::filesystem::path(path), std::ios::binary) << file;
}

} // namespace gallery
