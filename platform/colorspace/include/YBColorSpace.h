// Entry of the colour-space library.
//
//   const YBColorSpaceApi* api = VMQ_GetAPIStuPtr();          // or by GetProcAddress
//   YBPixelYCbCr black = {16, 128, 128};
//   YBPixelRGB rgb = api->pfnYCbCrToRGB(YB_MATRIX_BT709, black);   // {0, 0, 0}
//
// The library needs no other library, allocates nothing, keeps no state and may be called from any thread.
#pragma once

#if defined(QV_STATIC_LINK)
#define YBCOLORSPACE_API
#elif defined(YBCOLORSPACE_EXPORTS)
#define YBCOLORSPACE_API __declspec(dllexport)
#else
#define YBCOLORSPACE_API __declspec(dllimport)
#endif

// Version of the table below: high word major (members removed or changed), low word minor (members added at
// the end). A caller checks the major number and nStructBytes before it uses a later member.
enum { YB_COLORSPACE_VERSION = 0x00010000 };

// Which luma equation joins R'G'B' and Y'CbCr.
enum YBMatrix {
    YB_MATRIX_BT601 = 0, // Rec. ITU-R BT.601-7: Kr 0.299,  Kb 0.114  (standard definition)
    YB_MATRIX_BT709 = 1, // Rec. ITU-R BT.709-6: Kr 0.2126, Kb 0.0722 (high definition)
    YB_MATRIX_BT2020 = 2 // Rec. ITU-R BT.2020-2, non-constant luminance: Kr 0.2627, Kb 0.0593
};

// 8-bit non-linear R'G'B', full range: 0 is black, 255 is reference white.
struct YBPixelRGB {
    unsigned char r, g, b;
};

// 8-bit Y'CbCr, narrow range as in BT.601 and BT.709: Y' 16 black, 235 reference white; Cb and Cr 128
// neutral, 16 and 240 the ends of the nominal excursion.
struct YBPixelYCbCr {
    unsigned char y, cb, cr;
};

// The table of functions. No function fails: an unknown matrix is taken as YB_MATRIX_BT709, results are
// rounded to the nearest code (halves away from zero) and limited to 0..255, a null pixel pointer or a count
// below one makes a row function do nothing.
struct YBColorSpaceApi {
    unsigned int nStructBytes; // sizeof(YBColorSpaceApi) of the library
    unsigned int nVersion;     // YB_COLORSPACE_VERSION of the library

    YBPixelYCbCr (*pfnRGBToYCbCr)(int nMatrix, YBPixelRGB pixel);
    YBPixelRGB (*pfnYCbCrToRGB)(int nMatrix, YBPixelYCbCr pixel);

    // nCount pixels from pSource to pTarget; the two arrays must not overlap.
    void (*pfnRGBRowToYCbCr)(int nMatrix, const YBPixelRGB* pSource, YBPixelYCbCr* pTarget, int nCount);
    void (*pfnYCbCrRowToRGB)(int nMatrix, const YBPixelYCbCr* pSource, YBPixelRGB* pTarget, int nCount);

    // Luminance as a percentage of the black-to-white range (0 at code 16, 100 at code 235) and as an 8-bit
    // code. Neither is rounded nor limited; NaN gives NaN.
    double (*pfnLumaCodeToPercent)(double dCode);
    double (*pfnLumaPercentToCode)(double dPercent);
};

// The library's table: static, never null, valid until the library is unloaded, not to be freed.
extern "C" YBCOLORSPACE_API const YBColorSpaceApi* VMQ_GetAPIStuPtr();
