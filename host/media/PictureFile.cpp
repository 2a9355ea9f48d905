#include "PictureFile.h"

#include "ComPointer.h"

#include <wincodec.h>

#include <algorithm>

namespace {

CSize Fit(CSize size, CSize most) {
    if (most.cx <= 0 || most.cy <= 0 || (size.cx <= most.cx && size.cy <= most.cy))
        return size;
    const double scale =
        std::min(static_cast<double>(most.cx) / size.cx, static_cast<double>(most.cy) / size.cy);
    return CSize(std::max(1, static_cast<int>(size.cx * scale)),
                 std::max(1, static_cast<int>(size.cy * scale)));
}

bool OpenCodecs(ComPointer<IWICImagingFactory>& factory) {
    return SUCCEEDED(
        ::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&factory)));
}

// The first frame of the file and its size in pixels.
bool OpenFrame(IWICImagingFactory* factory, LPCWSTR path, ComPointer<IWICBitmapFrameDecode>& frame,
               CSize& size) {
    ComPointer<IWICBitmapDecoder> decoder;
    UINT width = 0;
    UINT height = 0;
    if (FAILED(factory->CreateDecoderFromFilename(path, nullptr, GENERIC_READ, WICDecodeMetadataCacheOnDemand,
                                                  &decoder)) ||
        FAILED(decoder->GetFrame(0, &frame)) || FAILED(frame->GetSize(&width, &height)) || !width || !height)
        return false;
    size = CSize(static_cast<int>(width), static_cast<int>(height));
    return true;
}

// The frame's pixels, as the bitmap has them, in another size.
bool CopyScaled(IWICImagingFactory* factory, IWICBitmapFrameDecode* frame, CSize size, CPixelBitmap& bitmap) {
    ComPointer<IWICFormatConverter> converter;
    ComPointer<IWICBitmapScaler> scaler;
    return SUCCEEDED(factory->CreateFormatConverter(&converter)) &&
           SUCCEEDED(converter->Initialize(frame, GUID_WICPixelFormat32bppBGR, WICBitmapDitherTypeNone,
                                           nullptr, 0.0, WICBitmapPaletteTypeCustom)) &&
           SUCCEEDED(factory->CreateBitmapScaler(&scaler)) &&
           SUCCEEDED(scaler->Initialize(converter.Get(), static_cast<UINT>(size.cx),
                                        static_cast<UINT>(size.cy), WICBitmapInterpolationModeFant)) &&
           bitmap.Create(size) &&
           SUCCEEDED(scaler->CopyPixels(nullptr, bitmap.Stride(), bitmap.ByteCount(), bitmap.Bits()));
}

} // namespace

bool LoadPictureFile(LPCWSTR path, CSize most, CPixelBitmap& bitmap, CSize& size) {
    ComPointer<IWICImagingFactory> factory;
    ComPointer<IWICBitmapFrameDecode> frame;
    CSize whole;
    bitmap.Clear();
    if (!OpenCodecs(factory) || !OpenFrame(factory.Get(), path, frame, whole))
        return false;
    if (!CopyScaled(factory.Get(), frame.Get(), Fit(whole, most), bitmap)) {
        bitmap.Clear();
        return false;
    }
    size = whole;
    return true;
}

bool SavePictureFile(LPCWSTR path, const CPixelBitmap& bitmap) {
    ComPointer<IWICImagingFactory> factory;
    ComPointer<IWICStream> stream;
    ComPointer<IWICBitmapEncoder> encoder;
    ComPointer<IWICBitmapFrameEncode> frame;
    GUID format = GUID_WICPixelFormat32bppBGRA;
    const UINT width = static_cast<UINT>(bitmap.Size().cx);
    const UINT height = static_cast<UINT>(bitmap.Size().cy);
    return OpenCodecs(factory) && SUCCEEDED(factory->CreateStream(&stream)) &&
           SUCCEEDED(stream->InitializeFromFilename(path, GENERIC_WRITE)) &&
           SUCCEEDED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &encoder)) &&
           SUCCEEDED(encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache)) &&
           SUCCEEDED(encoder->CreateNewFrame(&frame, nullptr)) && SUCCEEDED(frame->Initialize(nullptr)) &&
           SUCCEEDED(frame->SetSize(width, height)) && SUCCEEDED(frame->SetPixelFormat(&format)) &&
           SUCCEEDED(frame->WritePixels(height, bitmap.Stride(), bitmap.ByteCount(), bitmap.Bits())) &&
           SUCCEEDED(frame->Commit()) && SUCCEEDED(encoder->Commit());
}
