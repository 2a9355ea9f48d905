#include "PictureFile.h"

#include <wincodec.h>

#include <algorithm>

namespace {

constexpr UINT kBytesPerPixel = 4;

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

// A top-down 32-bit bitmap; the caller deletes it.
HBITMAP CreateBitmap(CSize size, void*& bits) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    return ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

HBITMAP MakeBitmap(IWICBitmapSource* source, CSize size) {
    void* bits = nullptr;
    const HBITMAP bitmap = CreateBitmap(size, bits);
    const UINT stride = static_cast<UINT>(size.cx) * kBytesPerPixel;
    if (bitmap && FAILED(source->CopyPixels(nullptr, stride, stride * static_cast<UINT>(size.cy),
                                            static_cast<BYTE*>(bits)))) {
        ::DeleteObject(bitmap);
        return nullptr;
    }
    return bitmap;
}

bool WritePng(LPCWSTR path, CSize size, void* bits) {
    Com<IWICImagingFactory> factory;
    Com<IWICStream> stream;
    Com<IWICBitmapEncoder> encoder;
    Com<IWICBitmapFrameEncode> frame;
    GUID format = GUID_WICPixelFormat32bppBGRA;
    const UINT stride = static_cast<UINT>(size.cx) * kBytesPerPixel;
    const UINT rows = static_cast<UINT>(size.cy);
    return SUCCEEDED(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                        IID_PPV_ARGS(&factory))) &&
           SUCCEEDED(factory->CreateStream(&stream)) &&
           SUCCEEDED(stream->InitializeFromFilename(path, GENERIC_WRITE)) &&
           SUCCEEDED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &encoder)) &&
           SUCCEEDED(encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache)) &&
           SUCCEEDED(encoder->CreateNewFrame(&frame, nullptr)) && SUCCEEDED(frame->Initialize(nullptr)) &&
           SUCCEEDED(frame->SetSize(static_cast<UINT>(size.cx), rows)) &&
           SUCCEEDED(frame->SetPixelFormat(&format)) &&
           SUCCEEDED(frame->WritePixels(rows, stride, stride * rows, static_cast<BYTE*>(bits))) &&
           SUCCEEDED(frame->Commit()) && SUCCEEDED(encoder->Commit());
}

// The drawing functions leave the alpha of what they touch undefined.
void MakeOpaque(void* bits, CSize size) {
    auto* pixels = static_cast<DWORD*>(bits);
    for (int i = 0; i < size.cx * size.cy; ++i)
        pixels[i] |= 0xFF000000u;
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

bool SaveWindowPicture(HWND window, LPCWSTR path) {
    CRect frame;
    if (!::GetWindowRect(window, &frame) || frame.IsRectEmpty())
        return false;
    void* bits = nullptr;
    const HBITMAP bitmap = CreateBitmap(frame.Size(), bits);
    if (!bitmap)
        return false;
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    const HDC source = ::GetDCEx(window, nullptr, DCX_WINDOW | DCX_CACHE);
    const HDC target = ::CreateCompatibleDC(source);
    const HGDIOBJ old = ::SelectObject(target, bitmap);
    ::BitBlt(target, 0, 0, frame.Width(), frame.Height(), source, 0, 0, SRCCOPY);
    ::SelectObject(target, old);
    ::DeleteDC(target);
    ::ReleaseDC(window, source);
    ::GdiFlush();
    MakeOpaque(bits, frame.Size());
    const bool written = WritePng(path, frame.Size(), bits);
    ::DeleteObject(bitmap);
    return written;
}
