#include "inventory/RasterImageBlock.hpp"

#include "inventory/ColorSpaceName.hpp"
#include "inventory/ImageAssetUrl.hpp"
#include "inventory/ImageMeasures.hpp"
#include "inventory/ImagePathText.hpp"
#include "inventory/ImageTypeWord.hpp"
#include "report/Error.hpp"
#include "report/HostFilePath.hpp"
#include "report/LoadTolvaneString.hpp"
#include "report/NumberFormatter.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

namespace {

constexpr int32_t kDecimals = 3;

HostString Bytes(const char* text) { return MakeUnicodeFromBytes(text, ZM_ENCODING_PLATFORM); }

HostString Word(int16_t index) { return LoadTolvaneString(ResImage, index); }

void AppendLine(HostString& block, const HostString& line) {
    block.Append(line);
    block.Append(Bytes("\r\n"));
}

// The record as the host fills it; the fields it leaves alone read as no known colour space
// and no bits.
ZMRasterRecord RasterRecordOf(ZMArtHandle art, bool placed) {
    ZMRasterRecord record{};
    record.colorSpace = ZM_RASTER_UNKNOWN;
    record.bitsPerPixel = 0;
    if (placed) {
        int32_t isRaster = 0;
        zm::Check(sPlacedSuite->GetPlacedRasterInfo(art, &record, &isRaster));
    } else {
        zm::Check(sRasterSuite->GetRasterInfo(art, &record));
    }
    return record;
}

// The first line of a linked image: its file's path.
void AppendPathLine(HostString& block, ZMFilePath file) {
    HostString path = HostString::Empty();
    ImagePathText(file, path);
    AppendLine(block, path);
}

// "Colorants: " and the inks' names joined by ", ". A first ink named "Gray" is shown by its
// localized name; a later one keeps the name it has.
HostString ColorantsLine(ZMColorSpaceHandle space) {
    HostString line = LoadTolvaneString(keys::kImageColorants);
    int32_t count = 0;
    zm::Check(sColorSpaceSuite->CountColorants(space, &count));
    const HostString gray = Bytes("Gray");
    for (int32_t i = 0; i < count; ++i) {
        HostString name = HostString::Empty();
        zm::Check(sColorSpaceSuite->GetColorantName(space, i, name.Get()));
        if (i > 0) {
            line.Append(Bytes(", "));
        }
        if (i == 0 && CompareStrings(name.Get(), gray.Get()) == 0) {
            line.Append(Word(kImageGrayscale));
        } else {
            line.Append(name);
        }
    }
    return line;
}

int16_t FamilyOf(ZMColorSpaceHandle space) {
    int16_t family = 0;
    zm::Check(sColorSpaceSuite->GetColorSpaceFamily(space, &family));
    return family;
}

// label + the family's name as a line.
void AppendSpaceLine(HostString& block, const char* label, int16_t family) {
    HostString line = LoadTolvaneString(label);
    zm::Check(ColorSpaceName(family, line));
    AppendLine(block, line);
}

// Separation, DeviceN and indexed spaces name their space and inks; an indexed space its base
// space too, whose inks are the ones shown. Other spaces add nothing.
void AppendColorSpaceLines(HostString& block, ZMColorSpaceHandle space) {
    const int16_t family = FamilyOf(space);
    if (family != ZM_COLOR_SPACE_SEPARATION && family != ZM_COLOR_SPACE_DEVICE_N &&
        family != ZM_COLOR_SPACE_INDEXED) {
        return;
    }
    AppendSpaceLine(block, keys::kImageColorSpace, family);
    ZMColorSpaceHandle inks = space;
    if (family == ZM_COLOR_SPACE_INDEXED) {
        zm::Check(sColorSpaceSuite->GetBaseColorSpace(space, &inks));
        AppendSpaceLine(block, keys::kImageBaseColorSpace, FamilyOf(inks));
    }
    AppendLine(block, ColorantsLine(inks));
}

// Size in kilobytes and pixels, dimensions in points and the resolution they make.
void AppendSizeLines(HostString& block, ZMArtHandle art, const ZMRasterRecord& record,
                     const NumberFormatter& numbers) {
    const int32_t width = ImagePixelExtent(record.left, record.right);
    const int32_t height = ImagePixelExtent(record.top, record.bottom);
    HostString size = Word(kImageSize);
    size.Append(numbers.Integer(ImageKilobytes(record.bitsPerPixel, width, height)));
    size.Append(Word(kImageKilobytes));
    size.Append(numbers.Integer(width));
    size.Append(Word(kImageSizeBy));
    size.Append(numbers.Integer(height));
    size.Append(Word(kImagePixels));
    AppendLine(block, size);

    ZMRealRect bounds{};
    zm::Check(sArtSuite->GetArtBounds(art, &bounds));
    // The page's y grows upwards: top is above bottom.
    const auto pointsWide = static_cast<float>(bounds.right - bounds.left);
    const auto pointsHigh = static_cast<float>(bounds.top - bounds.bottom);
    HostString dimensions = Word(kImageDimensions);
    dimensions.Append(numbers.Real(pointsWide, kDecimals));
    dimensions.Append(Word(kImageDimensionsBy));
    dimensions.Append(numbers.Real(pointsHigh, kDecimals));
    dimensions.Append(Word(kImagePoints));
    AppendLine(block, dimensions);

    HostString resolution = Word(kImageResolution);
    resolution.Append(numbers.Real(ImageResolution(width, pointsWide), kDecimals));
    resolution.Append(Word(kImageResolutionBy));
    resolution.Append(numbers.Real(ImageResolution(height, pointsHigh), kDecimals));
    resolution.Append(Word(kImagePixelsPerInch));
    AppendLine(block, resolution);
}

}  // namespace

RasterImageBlock DescribeRasterImage(ZMArtHandle art, bool placed) {
    const ZMRasterRecord record = RasterRecordOf(art, placed);
    RasterImageBlock block{HostString::Empty(), true};
    ZMColorSpaceHandle space = nullptr;
    HostFilePath file;
    if (placed) {
        zm::Check(sPlacedSuite->GetPlacedFilePath(art, file.Get()));
    } else {
        zm::Check(sRasterSuite->GetRasterColorSpace(art, &space));
        ZMRasterLink link{file.Get(), ZM_RASTER_LINK_EMBEDDED, ZM_RASTER_SOURCE_DOCUMENT};
        zm::Check(sRasterSuite->GetRasterLink(art, &link));
        block.linked =
            link.linkState == ZM_RASTER_LINK_FILE && link.sourceKind != ZM_RASTER_SOURCE_DOCUMENT;
    }
    if (block.linked) {
        AppendPathLine(block.text, file.Get());
    }

    HostString type = Word(kImageType);
    type.Append(ImageTypeWord(record, space));
    if (!placed) {
        int32_t colorized = 0;
        zm::Check(sRasterSuite->GetColorizedFlag(art, &colorized));
        if (colorized != 0) {
            type.Append(Bytes(" "));
            type.Append(LoadTolvaneString(keys::kImageColorized));
        }
    }
    AppendLine(block.text, type);

    // Integers in the plain form, without grouping ("1000"); reals the same way.
    const NumberFormatter numbers(ZM_NUMBER_FORMAT_NO_GROUPING);
    HostString bits = Word(kImageBits);
    bits.Append(numbers.Integer(record.bitsPerPixel));
    AppendLine(block.text, bits);
    HostString channels = Word(kImageChannels);
    channels.Append(numbers.Integer(ImageChannels(record.bitsPerPixel)));
    AppendLine(block.text, channels);

    if (!placed) {
        AppendColorSpaceLines(block.text, space);
    }
    AppendSizeLines(block.text, art, record, numbers);
    if (std::optional<HostString> url = AssetUrlText(art)) {
        block.text.Append(*url);  // the block's last line, without a line end
    }
    return block;
}

}  // namespace tolvane
