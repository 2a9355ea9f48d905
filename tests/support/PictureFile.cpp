// The file side of Picture: PNG through the system's image codecs.
#include "Picture.h"

#include <objbase.h>
#include <wincodec.h>

#include <cstring>
#include <filesystem>

namespace qvtest {
namespace {

// A COM pointer that lets go at the end of its scope.
template <class T> class Com {
  public:
    Com() = default;
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;
    ~Com() {
        if (m_it)
            m_it->Release();
    }
    T** out() { return &m_it; }
    void** voidOut() { return reinterpret_cast<void**>(&m_it); }
    T* operator->() const { return m_it; }
    T* get() const { return m_it; }

  private:
    T* m_it = nullptr;
};

// Pictures are saved from test threads too, which have no COM of their own.
class ComScope {
  public:
    ComScope() : m_entered(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;
    ~ComScope() {
        if (m_entered)
            CoUninitialize();
    }

  private:
    bool m_entered;
};

bool makeFactory(Com<IWICImagingFactory>& factory) {
    return SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IWICImagingFactory, factory.voidOut()));
}

// One 32-bit frame written to an encoder that is ready.
bool writeFrame(IWICBitmapEncoder* encoder, UINT widthPx, UINT heightPx, const void* pixels) {
    Com<IWICBitmapFrameEncode> frame;
    GUID format = GUID_WICPixelFormat32bppBGRA;
    const UINT stride = widthPx * 4;
    return SUCCEEDED(encoder->CreateNewFrame(frame.out(), nullptr)) &&
           SUCCEEDED(frame->Initialize(nullptr)) && SUCCEEDED(frame->SetSize(widthPx, heightPx)) &&
           SUCCEEDED(frame->SetPixelFormat(&format)) && format == GUID_WICPixelFormat32bppBGRA &&
           SUCCEEDED(frame->WritePixels(heightPx, stride, stride * heightPx,
                                        static_cast<BYTE*>(const_cast<void*>(pixels)))) &&
           SUCCEEDED(frame->Commit()) && SUCCEEDED(encoder->Commit());
}

} // namespace

bool Picture::save(const std::wstring& path) const {
    if (empty())
        return false;
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
    ComScope com;
    Com<IWICImagingFactory> factory;
    Com<IWICStream> stream;
    Com<IWICBitmapEncoder> encoder;
    return makeFactory(factory) && SUCCEEDED(factory->CreateStream(stream.out())) &&
           SUCCEEDED(stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE)) &&
           SUCCEEDED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.out())) &&
           SUCCEEDED(encoder->Initialize(stream.get(), WICBitmapEncoderNoCache)) &&
           writeFrame(encoder.get(), static_cast<UINT>(m_widthPx), static_cast<UINT>(m_heightPx),
                      m_pixels.data());
}

Picture Picture::load(const std::wstring& path) {
    ComScope com;
    Com<IWICImagingFactory> factory;
    Com<IWICBitmapDecoder> decoder;
    Com<IWICBitmapFrameDecode> frame;
    Com<IWICFormatConverter> converter;
    UINT widthPx = 0;
    UINT heightPx = 0;
    if (!makeFactory(factory) ||
        FAILED(factory->CreateDecoderFromFilename(path.c_str(), nullptr, GENERIC_READ,
                                                  WICDecodeMetadataCacheOnLoad, decoder.out())) ||
        FAILED(decoder->GetFrame(0, frame.out())) ||
        FAILED(factory->CreateFormatConverter(converter.out())) ||
        FAILED(converter->Initialize(frame.get(), GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                     nullptr, 0.0, WICBitmapPaletteTypeCustom)) ||
        FAILED(frame->GetSize(&widthPx, &heightPx)))
        return {};
    Picture picture(static_cast<int>(widthPx), static_cast<int>(heightPx));
    const UINT stride = widthPx * 4;
    if (FAILED(converter->CopyPixels(nullptr, stride, stride * heightPx,
                                     reinterpret_cast<BYTE*>(picture.m_pixels.data()))))
        return {};
    return picture;
}

} // namespace qvtest
