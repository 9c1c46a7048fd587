#include "inventory/ColorSpaceName.hpp"

#include "inventory/ImageWord.hpp"
#include "report/StringGroups.hpp"

#include <zelmora/ZMColorSpaceSuite.h>

#include <iterator>

namespace tolvane {

namespace {

// The families' names, from ZM_COLOR_SPACE_GRAY (1) on; the process ones are the type words
// of images of the same models.
constexpr ImageWord kFamilyNames[] = {
    ImageGroupWord(kImageGrayscale),       // 1
    ImageGroupWord(kImageRgb),             // 2
    ImageKeyWord(keys::kImageOpaqueLab),   // 3
    ImageGroupWord(kImageCmyk),            // 4
    ImageKeyWord(keys::kImageSeparation),  // 5
    ImageKeyWord(keys::kImageDeviceN),     // 6
    ImageKeyWord(keys::kImageIndexed),     // 7
};

static_assert(std::size(kFamilyNames) == ZM_COLOR_SPACE_INDEXED - ZM_COLOR_SPACE_GRAY + 1);

}  // namespace

ZMErr ColorSpaceName(int16_t family, HostString& text) {
    if (family < ZM_COLOR_SPACE_GRAY || family > ZM_COLOR_SPACE_INDEXED) {
        return ZM_ERR_PARAMETER;
    }
    text.Append(LoadImageWord(kFamilyNames[family - ZM_COLOR_SPACE_GRAY]));
    return ZM_ERR_NONE;
}

}  // namespace tolvane
