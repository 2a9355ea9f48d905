#include "PictureFile.h"

#include <wincodec.h>

#include <algorithm>

namespace {

// Releases a COM pointer at the end of its scope.
template <class T> class Com {
  public:
    Com() = default;
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;
    ~Com() {
        if (m_p)
            m_p->Release();
    }
    T** operator&() { return &m_p; }
    T* operator->() const { return m_p; }
    T* Get() const { return m_p; }

  private:
    T* m_p = nullptr;
};

CSize Fit(CSize size, CSize most) {
    if (most.cx <= 0 || most.cy <= 0 || (size.cx <= most.cx && size.cy <= most.cy))
        return size;
    const double scale =
        std::min(static_cast<double>(most.cx) / size.cx, static_cast<double>(most.cy) / size.cy);
    return CSize(std::max(1, static_cast<int>(size.cx * scale)),
                 std::max(1, static_cast<int>(size.cy * scale)));
}

HBITMAP MakeBitmap(IWICBitmapSource* source, CSize size) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const UINT stride = static_cast<UINT>(size.cx) * 4;
    if (bitmap && FAILED(source->CopyPixels(nullptr, stride, stride * static_cast<UINT>(size.cy),
                                            static_cast<BYTE*>(bits)))) {
        ::DeleteObject(bitmap);
        return nullptr;
    }
    return bitmap;
}

} // namespace

HBITMAP LoadPictureFile(LPCWSTR path, CSize most, CSize& size) {
    Com<IWICImagingFactory> factory;
    Com<IWICBitmapDecoder> decoder;
    Com<IWICBitmapFrameDecode> frame;
    Com<IWICFormatConverter> converter;
    Com<IWICBitmapScaler> scaler;
    UINT width = 0;
    UINT height = 0;
    if (FAILED(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                  IID_PPV_ARGS(&factory))) ||
        FAILED(factory->CreateDecoderFromFilename(path, nullptr, GENERIC_READ, WICDecodeMetadataCacheOnDemand,
                                                  &decoder)) ||
        FAILED(decoder->GetFrame(0, &frame)) || FAILED(frame->GetSize(&width, &height)) || !width ||
        !height || FAILED(factory->CreateFormatConverter(&converter)) ||
        FAILED(converter->Initialize(frame.Get(), GUID_WICPixelFormat32bppBGR, WICBitmapDitherTypeNone,
                                     nullptr, 0.0, WICBitmapPaletteTypeCustom)) ||
        FAILED(factory->CreateBitmapScaler(&scaler)))
        return nullptr;
    const CSize whole(static_cast<int>(width), static_cast<int>(height));
    const CSize shown = Fit(whole, most);
    if (FAILED(scaler->Initialize(converter.Get(), static_cast<UINT>(shown.cx), static_cast<UINT>(shown.cy),
                                  WICBitmapInterpolationModeFant)))
        return nullptr;
    const HBITMAP bitmap = MakeBitmap(scaler.Get(), shown);
    if (bitmap)
        size = whole;
    return bitmap;
}
