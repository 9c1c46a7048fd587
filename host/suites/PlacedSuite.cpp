#include "images/RasterHeader.hpp"
#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/FilePathObject.hpp"
#include "suites/RasterRecords.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMPlacedSuite.h>

#include <optional>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_PLACED_SUITE_NAME;

using document::Art;
using document::ArtType;

// The model's placed types carry the suite's codes.
static_assert(static_cast<int16_t>(document::PlacedType::Eps) == ZM_PLACED_TYPE_EPS);
static_assert(static_cast<int16_t>(document::PlacedType::Other) == ZM_PLACED_TYPE_OTHER);

// The image of placed art of the current document, in the order every entry checks:
// document, art.
const document::Image& RequirePlacedImage(Runtime& runtime, ZMArtHandle placed) {
    CurrentDocument(runtime);
    const Art& art = ArtOf(placed, ArtType::Placed);
    if (!art.image) {
        throw HostError(ZM_ERR_INTERNAL, "placed art without an image");
    }
    return *art.image;
}

ZMErr ZM_API GetPlacedFilePath(ZMArtHandle placed, ZMFilePath file) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        const document::Image& image = RequirePlacedImage(runtime, placed);
        std::filesystem::path& target = RequireFilePath(runtime, file);
        // An <image> without an address resolves to the document's folder; it names no file.
        target = image.href.empty() ? std::filesystem::path() : image.file;
    });
}

ZMErr ZM_API GetPlacedType(ZMArtHandle placed, ZMPlacedType* type) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        const document::Image& image = RequirePlacedImage(runtime, placed);
        RequireArguments(type);
        *type = static_cast<ZMPlacedType>(image.placedType);
    });
}

ZMErr ZM_API GetPlacedRasterInfo(ZMArtHandle placed, ZMRasterRecord* info, int32_t* isRaster) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const document::Image& image = RequirePlacedImage(runtime, placed);
        RequireArguments(info, isRaster);
        std::optional<images::RasterHeader> header;
        if (image.fileIsRaster) {
            try {
                header = DescribeImage(ArtOf(placed));
            } catch (const HostError& error) {
                if (error.Code() != ZM_ERR_BAD_RASTER) {
                    throw;
                }
                // An image the host cannot describe is placed as a file like any other.
            }
        }
        if (header) {
            *info = ToRasterRecord(*header);
        }
        *isRaster = header ? 1 : 0;
    });
}

ZMPlacedSuite MakeTable() {
    ZMPlacedSuite table{};
    table.GetPlacedFilePath = GetPlacedFilePath;
    table.GetPlacedType = GetPlacedType;
    table.GetPlacedRasterInfo = GetPlacedRasterInfo;
    return table;
}

const ZMPlacedSuite kTable = MakeTable();

}  // namespace

void RegisterPlacedSuite(SuiteRegistry& registry) {
    registry.Add(ZM_PLACED_SUITE_NAME, ZM_PLACED_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
