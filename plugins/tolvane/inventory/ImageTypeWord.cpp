#include "inventory/ImageTypeWord.hpp"

#include "inventory/ImageWord.hpp"
#include "report/StringGroups.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

namespace {

// The words of one colour space code: ink codes have two, by the count of inks, gray two, by
// the bits per pixel; the others the same word twice.
struct CodeWords {
    ZMRasterColorSpace code;
    ImageWord word;
    ImageWord single;  // one ink; for gray: 1 bit per pixel
};

constexpr CodeWords kCodeWords[] = {
    {ZM_RASTER_GRAY, ImageGroupWord(kImageGrayscale), ImageGroupWord(kImageBitmap)},
    {ZM_RASTER_RGB, ImageGroupWord(kImageRgb), ImageGroupWord(kImageRgb)},
    {ZM_RASTER_CMYK, ImageGroupWord(kImageCmyk), ImageGroupWord(kImageCmyk)},
    {ZM_RASTER_LAB, ImageKeyWord(keys::kImageOpaqueLab), ImageKeyWord(keys::kImageOpaqueLab)},
    {ZM_RASTER_SEPARATION, ImageKeyWord(keys::kImageOpaqueMixedInks),
     ImageKeyWord(keys::kImageOpaqueSingleInk)},
    {ZM_RASTER_DEVICE_N, ImageKeyWord(keys::kImageOpaqueMixedInks),
     ImageKeyWord(keys::kImageOpaqueSingleInk)},
    {ZM_RASTER_PROCESS_AND_SPOT, ImageKeyWord(keys::kImageOpaqueMixedInks),
     ImageKeyWord(keys::kImageOpaqueSingleInk)},
    {ZM_RASTER_ALPHA + ZM_RASTER_GRAY, ImageGroupWord(kImageTransparentGray),
     ImageGroupWord(kImageTransparentGray)},
    {ZM_RASTER_ALPHA + ZM_RASTER_RGB, ImageGroupWord(kImageTransparentRgb),
     ImageGroupWord(kImageTransparentRgb)},
    {ZM_RASTER_ALPHA + ZM_RASTER_CMYK, ImageGroupWord(kImageTransparentCmyk),
     ImageGroupWord(kImageTransparentCmyk)},
    {ZM_RASTER_ALPHA + ZM_RASTER_LAB, ImageKeyWord(keys::kImageTransparentLab),
     ImageKeyWord(keys::kImageTransparentLab)},
    {ZM_RASTER_ALPHA + ZM_RASTER_SEPARATION, ImageKeyWord(keys::kImageTransparentMixedInks),
     ImageKeyWord(keys::kImageTransparentSingleInk)},
    {ZM_RASTER_ALPHA + ZM_RASTER_DEVICE_N, ImageKeyWord(keys::kImageTransparentMixedInks),
     ImageKeyWord(keys::kImageTransparentSingleInk)},
    {ZM_RASTER_ALPHA + ZM_RASTER_PROCESS_AND_SPOT, ImageKeyWord(keys::kImageTransparentMixedInks),
     ImageKeyWord(keys::kImageTransparentSingleInk)},
};

bool IsInkCode(ZMRasterColorSpace code) {
    const int opaque = code >= ZM_RASTER_ALPHA ? code - ZM_RASTER_ALPHA : code;
    return opaque >= ZM_RASTER_SEPARATION && opaque <= ZM_RASTER_PROCESS_AND_SPOT;
}

// A space that cannot be asked is not a one-ink space.
bool HasOneColorant(ZMColorSpaceHandle space) {
    int32_t count = 0;
    return space != nullptr && sColorSpaceSuite->CountColorants(space, &count) == ZM_ERR_NONE &&
           count == 1;
}

}  // namespace

HostString ImageTypeWord(const ZMRasterRecord& record, ZMColorSpaceHandle space) {
    for (const CodeWords& entry : kCodeWords) {
        if (entry.code != record.colorSpace) {
            continue;
        }
        const bool single = IsInkCode(entry.code)
                                ? HasOneColorant(space)
                                : entry.code == ZM_RASTER_GRAY && record.bitsPerPixel == 1;
        return LoadImageWord(single ? entry.single : entry.word);
    }
    return HostString::Empty();
}

}  // namespace tolvane
