#include <zelmora/ZMLiveShapesSuite.h>

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "document/ArtMatching.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/LayerHandles.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

document::Segment ToSegment(const ZMPathSegment& record) {
    return {{record.anchor.x, record.anchor.y},
            {record.in.x, record.in.y},
            {record.out.x, record.out.y},
            record.corner != 0};
}

// The corners of the document's live shape whose path is exactly these segments.
std::optional<std::vector<document::Corner>> LiveShapeCorners(
    const document::Document& document, const std::vector<document::Segment>& segments) {
    const document::MatchCriterion any[] = {{-1, 0, 0}};
    std::vector<document::Layer*> layers = LayersOf(document);
    for (const document::Art* art : document::MatchArt(layers, any)) {
        if (art->liveShape && art->path.segments == segments) {
            return art->liveShape->corners;
        }
    }
    return std::nullopt;
}

// Without a live shape to ask, each corner anchor is a plain corner.
std::vector<document::Corner> AnchorCorners(const std::vector<document::Segment>& segments) {
    std::vector<document::Corner> corners;
    for (const document::Segment& segment : segments) {
        if (segment.corner) {
            corners.push_back(document::Corner{});
        }
    }
    return corners;
}

const document::Corner& CornerAt(Runtime& runtime, ZMLiveCornersHandle corners, int32_t index) {
    const std::vector<document::Corner>& held = runtime.liveCorners.Require(corners).corners;
    if (index < 0 || static_cast<std::size_t>(index) >= held.size()) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "no corner at that index");
    }
    return held[static_cast<std::size_t>(index)];
}

ZMErr ZM_API NewCorners(ZMLiveCornersHandle* corners) {
    return GuardSuiteCall(ZM_LIVE_CORNERS_SUITE_NAME, 0, [&](Runtime& runtime) {
        RequireArguments(corners);
        *corners = runtime.liveCorners.HandleOf(runtime.liveCorners.Add(LiveCornersObject{}));
    });
}

ZMErr ZM_API LoadFromSegments(ZMLiveCornersHandle corners, const ZMPathSegment* segments,
                              int32_t count, int32_t flags) {
    return GuardSuiteCall(ZM_LIVE_CORNERS_SUITE_NAME, 1, [&](Runtime& runtime) {
        LiveCornersObject& object = runtime.liveCorners.Require(corners);
        if (count < 0 || (count > 0 && segments == nullptr) ||
            (flags != ZM_LIVE_CORNERS_FROM_ANCHORS && flags != ZM_LIVE_CORNERS_FROM_LIVE_SHAPE)) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "bad segments or flags");
        }
        std::vector<document::Segment> read;
        for (const ZMPathSegment& record : std::span(segments, static_cast<std::size_t>(count))) {
            read.push_back(ToSegment(record));
        }
        std::optional<std::vector<document::Corner>> found;
        if (flags == ZM_LIVE_CORNERS_FROM_LIVE_SHAPE) {
            found = LiveShapeCorners(CurrentDocument(runtime), read);
        }
        object.corners = found ? std::move(*found) : AnchorCorners(read);
    });
}

ZMErr ZM_API CountCorners(ZMLiveCornersHandle corners, int32_t* count) {
    return GuardSuiteCall(ZM_LIVE_CORNERS_SUITE_NAME, 2, [&](Runtime& runtime) {
        RequireArguments(count);
        *count = static_cast<int32_t>(runtime.liveCorners.Require(corners).corners.size());
    });
}

ZMErr ZM_API GetCornerType(ZMLiveCornersHandle corners, int32_t index, int32_t* type) {
    return GuardSuiteCall(ZM_LIVE_CORNERS_SUITE_NAME, 3, [&](Runtime& runtime) {
        RequireArguments(type);
        *type = CornerAt(runtime, corners, index).type;
    });
}

ZMErr ZM_API GetCornerRoundingType(ZMLiveCornersHandle corners, int32_t index,
                                   int32_t* roundingType) {
    return GuardSuiteCall(ZM_LIVE_CORNERS_SUITE_NAME, 4, [&](Runtime& runtime) {
        RequireArguments(roundingType);
        *roundingType = CornerAt(runtime, corners, index).roundingType;
    });
}

ZMErr ZM_API GetCornerRadius(ZMLiveCornersHandle corners, int32_t index, double* radius) {
    return GuardSuiteCall(ZM_LIVE_CORNERS_SUITE_NAME, 5, [&](Runtime& runtime) {
        RequireArguments(radius);
        *radius = CornerAt(runtime, corners, index).radius;
    });
}

ZMErr ZM_API DisposeCorners(ZMLiveCornersHandle corners) {
    return GuardSuiteCall(ZM_LIVE_CORNERS_SUITE_NAME, 6,
                          [&](Runtime& runtime) { runtime.liveCorners.Remove(corners); });
}

ZMLiveCornersSuite MakeTable() {
    ZMLiveCornersSuite table{};
    table.NewCorners = NewCorners;
    table.LoadFromSegments = LoadFromSegments;
    table.CountCorners = CountCorners;
    table.GetCornerType = GetCornerType;
    table.GetCornerRoundingType = GetCornerRoundingType;
    table.GetCornerRadius = GetCornerRadius;
    table.DisposeCorners = DisposeCorners;
    return table;
}

const ZMLiveCornersSuite kTable = MakeTable();

}  // namespace

void RegisterLiveCornersSuite(SuiteRegistry& registry) {
    registry.Add(ZM_LIVE_CORNERS_SUITE_NAME, ZM_LIVE_CORNERS_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
