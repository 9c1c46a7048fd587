#pragma once

#include <cstdint>

namespace tolvane {

// The localizable string groups. Each entry is a whole key, "$$$/Tolvane/Str/<group>/<index>
// [/Win|/Mac]=<English default>", handed to the host as it stands; the host resolves it for
// the current locale. Entry 0 names the group and is never shown, so real strings begin at
// index 1. The same keys sit in the bundle's string table at the group's base id + index.
using StringGroup = const char* const*;

extern const char* const ResFilter[7];           // base id 18000
extern const char* const ResReadWrite[13];       // 18050; carried for translators only
extern const char* const ResOther[10];           // 18100
extern const char* const ResDocument[13];        // 18150
extern const char* const ResPopup[2];            // 18250; carried for translators only
extern const char* const ResObject[29];          // 18300
extern const char* const ResGradient[8];         // 18350
extern const char* const ResImage[26];           // 18400
extern const char* const ResMode[5];             // 18450
extern const char* const ResSave[3];             // 18500
extern const char* const ResGPNError[5];         // 18550; carried for translators only
extern const char* const ResFontDetail[19];      // 18600
extern const char* const ResTitleTextBase[12];   // 18650; entry 0 is a placeholder, not a key
extern const char* const ResColorModel[6];       // 18700
extern const char* const ResFontType[10];        // 18800
extern const char* const ResFontTypeDetail[10];  // 18850

// Indexes the code fetches by name.
inline constexpr int16_t kOtherOn = 3;
inline constexpr int16_t kOtherOff = 4;
inline constexpr int16_t kOtherNone = 6;
inline constexpr int16_t kOtherCountFormat = 8;  // "%s: %d"
inline constexpr int16_t kOtherTooLong = 9;

inline constexpr int16_t kDocumentUrl = 7;  // "URL:"

// ResImage: the words and labels of image descriptions.
inline constexpr int16_t kImageUnknown = 3;  // "(Unknown image)"
inline constexpr int16_t kImageType = 4;     // "Type: "
inline constexpr int16_t kImageEps = 5;
inline constexpr int16_t kImageBitmap = 6;  // "Black & White Bitmap"
inline constexpr int16_t kImageGrayscale = 7;
inline constexpr int16_t kImageRgb = 8;
inline constexpr int16_t kImageCmyk = 9;
inline constexpr int16_t kImageTransparentGray = 10;
inline constexpr int16_t kImageTransparentRgb = 11;
inline constexpr int16_t kImageTransparentCmyk = 12;
inline constexpr int16_t kImageBits = 13;        // "Bits per Pixel: "
inline constexpr int16_t kImageChannels = 14;    // "Channels: "
inline constexpr int16_t kImageSize = 15;        // "Size: "
inline constexpr int16_t kImageKilobytes = 16;   // "K, "
inline constexpr int16_t kImageSizeBy = 17;      // " by "
inline constexpr int16_t kImagePixels = 18;      // " pixels"
inline constexpr int16_t kImageDimensions = 19;  // "Dimensions: "
inline constexpr int16_t kImageDimensionsBy = 20;
inline constexpr int16_t kImagePoints = 21;  // " points ", with its trailing blank
inline constexpr int16_t kImageResolution = 22;
inline constexpr int16_t kImageResolutionBy = 23;
inline constexpr int16_t kImagePixelsPerInch = 24;
inline constexpr int16_t kImageOther = 25;

inline constexpr int16_t kTitleDocument = 1;
inline constexpr int16_t kTitleSpotColors = 2;
inline constexpr int16_t kTitlePatterns = 3;
inline constexpr int16_t kTitleGradients = 4;
inline constexpr int16_t kTitleFonts = 5;
inline constexpr int16_t kTitleObjects = 6;
inline constexpr int16_t kTitleLinkedImages = 7;
inline constexpr int16_t kTitleEmbeddedImages = 8;
inline constexpr int16_t kTitleFontDetails = 9;
inline constexpr int16_t kTitleBrushes = 10;
inline constexpr int16_t kTitleGraphicStyles = 11;

// Keys of their own, outside any group array.
namespace keys {
inline constexpr const char* kSpotRgb = "$$$/Tolvane/Str/ResSpot/1=(RGB)";
inline constexpr const char* kSpotCmyk = "$$$/Tolvane/Str/ResSpot/2=(CMYK)";
inline constexpr const char* kSpotLab = "$$$/Tolvane/Str/ResSpot/3=(Lab)";

inline constexpr const char* kObjectEnvelope = "$$$/Tolvane/Str/ResObject/Envelope=Envelopes:";
inline constexpr const char* kObjectFlare = "$$$/Tolvane/Str/ResObject/Flare=Flares:";
inline constexpr const char* kObjectTracing =
    "$$$/Tolvane/Str/ResObject/Tracing=Image Tracing Objects:";
inline constexpr const char* kObjectChart = "$$$/Tolvane/Str/ResObject/Chart=Charts:";
inline constexpr const char* kObjectGraph = "$$$/Tolvane/Str/ResObject/Graph=Graphs:";
inline constexpr const char* kObjectTypeAll = "$$$/Tolvane/Str/ResObject/TypeAll=All Type Objects:";
inline constexpr const char* kObjectPointType =
    "$$$/Tolvane/Str/ResObject/PointType=Point Type Objects:";
inline constexpr const char* kObjectAreaType =
    "$$$/Tolvane/Str/ResObject/AreaType=Area Type Objects:";
inline constexpr const char* kObjectPathType =
    "$$$/Tolvane/Str/ResObject/PathType=Type on Path Objects:";

inline constexpr const char* kImageOpaqueLab = "$$$/Tolvane/Str/ResImage/OpaqueLab=Lab";
inline constexpr const char* kImageOpaqueSingleInk =
    "$$$/Tolvane/Str/ResImage/OpaqueSingleInk=Single Ink Image";
inline constexpr const char* kImageOpaqueMixedInks =
    "$$$/Tolvane/Str/ResImage/OpaqueMixedInks=Mixed Ink Image";
inline constexpr const char* kImageTransparentLab = "$$$/Tolvane/Str/ResImage/TrnspLab=Transparent Lab";
inline constexpr const char* kImageTransparentSingleInk =
    "$$$/Tolvane/Str/ResImage/TrnspSingleInk=Transparent Single Ink Image";
inline constexpr const char* kImageTransparentMixedInks =
    "$$$/Tolvane/Str/ResImage/TrnspMixedInks=Transparent Mixed Ink Image";
inline constexpr const char* kImageColorized = "$$$/Tolvane/Str/ResImage/Colorized=(Colorized)";
inline constexpr const char* kImageColorSpace = "$$$/Tolvane/Str/ResImage/ColorSpace=Color Space: ";
inline constexpr const char* kImageBaseColorSpace =
    "$$$/Tolvane/Str/ResImage/BaseColorSpace=Base Color Space: ";
inline constexpr const char* kImageColorants = "$$$/Tolvane/Str/ResImage/Colorants=Colorants: ";
inline constexpr const char* kImageSeparation = "$$$/Tolvane/Str/ResImage/OpaqueSepn=Separation";
inline constexpr const char* kImageDeviceN = "$$$/Tolvane/Str/ResImage/OpaqueDevN=DeviceN";
inline constexpr const char* kImageIndexed = "$$$/Tolvane/Str/ResImage/OpaqueIndx=Indexed";
}  // namespace keys

}  // namespace tolvane
