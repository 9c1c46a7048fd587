#pragma once

#include <zelmora/ZMLiveShapesSuite.h>

#include <vector>

#include "document/ArtContent.hpp"
#include "runtime/HandleList.hpp"

namespace zm::host {

// The corners a plug-in loaded from path segments, held until it disposes of them.
struct LiveCornersObject {
    std::vector<document::Corner> corners;
};

using LiveCornersObjects = HandleList<LiveCornersObject, ZMLiveCornersHandle>;

}  // namespace zm::host
