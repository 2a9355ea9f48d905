// The colour-space library: conversions between R'G'B' and Y'CbCr, and the table that offers them.
#include "YBColorSpace.h"

#include <cmath>

namespace {

constexpr double kBlackCode = 16.0;
constexpr double kLumaCodes = 219.0;   // from black to reference white
constexpr double kChromaCodes = 224.0; // nominal excursion of Cb and Cr
constexpr double kNeutralCode = 128.0;
constexpr double kFullCodes = 255.0;

struct LumaWeights {
    double red;
    double blue;
};

constexpr LumaWeights WeightsOf(int matrix) {
    switch (matrix) {
    case YB_MATRIX_BT601:
        return {0.299, 0.114};
    case YB_MATRIX_BT2020:
        return {0.2627, 0.0593};
    default:
        return {0.2126, 0.0722};
    }
}

unsigned char ToCode(double value) {
    if (!(value > 0.0))
        return 0;
    return value >= kFullCodes ? 255 : static_cast<unsigned char>(std::lround(value));
}

YBPixelYCbCr Encode(const LumaWeights& k, YBPixelRGB pixel) {
    const double red = pixel.r / kFullCodes;
    const double green = pixel.g / kFullCodes;
    const double blue = pixel.b / kFullCodes;
    const double luma = k.red * red + (1.0 - k.red - k.blue) * green + k.blue * blue;
    const double cb = (blue - luma) / (2.0 * (1.0 - k.blue));
    const double cr = (red - luma) / (2.0 * (1.0 - k.red));
    return {ToCode(kBlackCode + kLumaCodes * luma), ToCode(kNeutralCode + kChromaCodes * cb),
            ToCode(kNeutralCode + kChromaCodes * cr)};
}

YBPixelRGB Decode(const LumaWeights& k, YBPixelYCbCr pixel) {
    const double luma = (pixel.y - kBlackCode) / kLumaCodes;
    const double cb = (pixel.cb - kNeutralCode) / kChromaCodes;
    const double cr = (pixel.cr - kNeutralCode) / kChromaCodes;
    const double red = luma + 2.0 * (1.0 - k.red) * cr;
    const double blue = luma + 2.0 * (1.0 - k.blue) * cb;
    const double green = (luma - k.red * red - k.blue * blue) / (1.0 - k.red - k.blue);
    return {ToCode(kFullCodes * red), ToCode(kFullCodes * green), ToCode(kFullCodes * blue)};
}

YBPixelYCbCr RGBToYCbCr(int matrix, YBPixelRGB pixel) {
    return Encode(WeightsOf(matrix), pixel);
}

YBPixelRGB YCbCrToRGB(int matrix, YBPixelYCbCr pixel) {
    return Decode(WeightsOf(matrix), pixel);
}

template <class Source, class Target>
void ConvertRow(Target (*convert)(const LumaWeights&, Source), int matrix, const Source* source,
                Target* target, int count) {
    if (!source || !target)
        return;
    const LumaWeights weights = WeightsOf(matrix);
    for (int i = 0; i < count; ++i)
        target[i] = convert(weights, source[i]);
}

void RGBRowToYCbCr(int matrix, const YBPixelRGB* source, YBPixelYCbCr* target, int count) {
    ConvertRow(Encode, matrix, source, target, count);
}

void YCbCrRowToRGB(int matrix, const YBPixelYCbCr* source, YBPixelRGB* target, int count) {
    ConvertRow(Decode, matrix, source, target, count);
}

double LumaCodeToPercent(double code) {
    return (code - kBlackCode) * 100.0 / kLumaCodes;
}

double LumaPercentToCode(double percent) {
    return kBlackCode + percent * kLumaCodes / 100.0;
}

constexpr YBColorSpaceApi kApi = {
    sizeof(YBColorSpaceApi), YB_COLORSPACE_VERSION, RGBToYCbCr,        YCbCrToRGB,
    RGBRowToYCbCr,           YCbCrRowToRGB,         LumaCodeToPercent, LumaPercentToCode};

} // namespace

const YBColorSpaceApi* VMQ_GetAPIStuPtr() {
    return &kApi;
}
