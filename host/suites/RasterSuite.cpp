#include "images/ImageColorSpace.hpp"
#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/FilePathObject.hpp"
#include "suites/RasterRecords.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMRasterSuite.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_RASTER_SUITE_NAME;

using document::Art;
using document::ArtType;

// Raster art of the current document, in the order every entry checks: document, art.
const Art& RequireRaster(Runtime& runtime, ZMArtHandle raster) {
    CurrentDocument(runtime);
    return ArtOf(raster, ArtType::Raster);
}

ZMErr ZM_API GetRasterInfo(ZMArtHandle raster, ZMRasterRecord* info) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        const Art& art = RequireRaster(runtime, raster);
        RequireArguments(info);
        *info = ToRasterRecord(DescribeImage(art));
    });
}

ZMErr ZM_API GetRasterColorSpace(ZMArtHandle raster, ZMColorSpaceHandle* space) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        const Art& art = RequireRaster(runtime, raster);
        RequireArguments(space);
        const document::ColorSpace& held =
            images::ImageColorSpace(CurrentDocument(runtime).colorSpaces, DescribeImage(art));
        // A colour space handle is the address of the space in the document's store.
        *space = reinterpret_cast<ZMColorSpaceHandle>(const_cast<document::ColorSpace*>(&held));
    });
}

ZMErr ZM_API GetRasterLink(ZMArtHandle raster, ZMRasterLink* link) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const Art& art = RequireRaster(runtime, raster);
        RequireArguments(link);
        std::filesystem::path& file = RequireFilePath(runtime, link->file);
        if (!art.image) {
            throw HostError(ZM_ERR_BAD_RASTER, "raster art without an image");
        }
        const document::Image& image = *art.image;
        file = image.embedded ? std::filesystem::path() : image.file;
        link->linkState = image.embedded ? ZM_RASTER_LINK_EMBEDDED : ZM_RASTER_LINK_FILE;
        link->sourceKind = image.embedded ? ZM_RASTER_SOURCE_DOCUMENT : ZM_RASTER_SOURCE_FILE;
    });
}

ZMErr ZM_API GetColorizedFlag(ZMArtHandle raster, int32_t* colorized) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        RequireRaster(runtime, raster);
        RequireArguments(colorized);
        *colorized = 0;  // no importer can give an image a colour of its own
    });
}

ZMRasterSuite MakeTable() {
    ZMRasterSuite table{};
    table.GetRasterInfo = GetRasterInfo;
    table.GetRasterColorSpace = GetRasterColorSpace;
    table.GetRasterLink = GetRasterLink;
    table.GetColorizedFlag = GetColorizedFlag;
    return table;
}

const ZMRasterSuite kTable = MakeTable();

}  // namespace

void RegisterRasterSuite(SuiteRegistry& registry) {
    registry.Add(ZM_RASTER_SUITE_NAME, ZM_RASTER_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
