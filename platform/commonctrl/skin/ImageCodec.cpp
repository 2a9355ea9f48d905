#include "ImageCodec.h"

#include "module/Guards.h"

#include <wincodec.h>

namespace _qv_commonctrl {

namespace {

Pixels ReadPixels(IWICImagingFactory* factory, IWICBitmapDecoder* decoder) {
    ComPtr<IWICBitmapFrameDecode> frame;
    ComPtr<IWICFormatConverter> converter;
    UINT width = 0;
    UINT height = 0;
    if (FAILED(decoder->GetFrame(0, &frame)) || FAILED(factory->CreateFormatConverter(&converter)) ||
        FAILED(converter->Initialize(frame.Get(), GUID_WICPixelFormat32bppPBGRA, WICBitmapDitherTypeNone,
                                     nullptr, 0, WICBitmapPaletteTypeCustom)) ||
        FAILED(converter->GetSize(&width, &height)))
        return {};
    if (width < 1 || height < 1 || width > kMaxImageSidePx || height > kMaxImageSidePx ||
        static_cast<int64_t>(width) * height > kMaxImagePixels)
        return {};
    Pixels pixels;
    pixels.width = static_cast<int>(width);
    pixels.height = static_cast<int>(height);
    pixels.values.resize(static_cast<std::size_t>(width) * height);
    const UINT stride = width * sizeof(uint32_t);
    if (FAILED(converter->CopyPixels(nullptr, stride, stride * height,
                                     reinterpret_cast<BYTE*>(pixels.values.data()))))
        return {};
    return pixels;
}

bool CreateFactory(ComPtr<IWICImagingFactory>& factory) {
    return SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IWICImagingFactory, reinterpret_cast<void**>(&factory)));
}

} // namespace

Pixels DecodeImageFile(const std::wstring& path) {
    const ComScope com;
    ComPtr<IWICImagingFactory> factory;
    ComPtr<IWICBitmapDecoder> decoder;
    if (!CreateFactory(factory) ||
        FAILED(factory->CreateDecoderFromFilename(path.c_str(), nullptr, GENERIC_READ,
                                                  WICDecodeMetadataCacheOnDemand, &decoder)))
        return {};
    return ReadPixels(factory.Get(), decoder.Get());
}

Pixels DecodeImageBytes(std::string_view bytes) {
    const ComScope com;
    ComPtr<IWICImagingFactory> factory;
    ComPtr<IWICStream> stream;
    ComPtr<IWICBitmapDecoder> decoder;
    if (bytes.empty() || !CreateFactory(factory) || FAILED(factory->CreateStream(&stream)))
        return {};
    BYTE* const start = reinterpret_cast<BYTE*>(const_cast<char*>(bytes.data())); // the stream only reads
    if (FAILED(stream->InitializeFromMemory(start, static_cast<DWORD>(bytes.size()))) ||
        FAILED(factory->CreateDecoderFromStream(stream.Get(), nullptr, WICDecodeMetadataCacheOnDemand,
                                                &decoder)))
        return {};
    return ReadPixels(factory.Get(), decoder.Get());
}

} // namespace _qv_commonctrl
