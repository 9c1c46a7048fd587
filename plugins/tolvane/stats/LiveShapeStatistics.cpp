#include "stats/LiveShapeStatistics.hpp"

#include "shell/AppContext.hpp"
#include "shell/OptionalSuites.hpp"
#include "shell/SuiteSet.hpp"
#include "stats/UsageEntries.hpp"
#include "survey/ArtMatcher.hpp"

#include <vector>

namespace tolvane {

namespace {

// Radii this close are the same radius: 2^-16 points.
constexpr double kRadiusTolerance = 1.52587890625e-05;

struct Corner {
    int32_t type = 0;
    int32_t roundingType = 0;
    double radius = 0.0;
};

struct CornerAgreement {
    bool sameType = true;
    bool sameRounding = true;
    bool sameRadii = true;
};

bool IsLiveShape(ZMArtHandle art) {
    const auto* liveShapes = static_cast<const ZMLiveShapesSuite*>(sLiveShapesSuite);
    ZMBool isLiveShape = 0;
    return liveShapes != nullptr && liveShapes->IsLiveShape(art, &isLiveShape) == ZM_ERR_NONE &&
           isLiveShape != 0;
}

// A read that fails leaves its value at 0, and the comparison goes on with it.
Corner ReadCorner(ZMLiveCornersHandle corners, int32_t index) {
    Corner corner;
    sLiveCornersSuite->GetCornerType(corners, index, &corner.type);
    sLiveCornersSuite->GetCornerRoundingType(corners, index, &corner.roundingType);
    sLiveCornersSuite->GetCornerRadius(corners, index, &corner.radius);
    return corner;
}

bool SameRadius(double a, double b) {
    ZMBool equal = 0;
    sRealMathSuite->EqualWithinTol(a, b, kRadiusTolerance, &equal);
    return equal != 0;
}

// Every corner against corner 0, never against its neighbour; the count is read again before
// each corner.
CornerAgreement CompareCorners(ZMLiveCornersHandle corners) {
    CornerAgreement agreement;
    const Corner reference = ReadCorner(corners, 0);
    int32_t count = 0;
    for (int32_t index = 1;
         sLiveCornersSuite->CountCorners(corners, &count) == ZM_ERR_NONE && index < count;
         ++index) {
        const Corner corner = ReadCorner(corners, index);
        agreement.sameType = agreement.sameType && corner.type == reference.type;
        agreement.sameRounding =
            agreement.sameRounding && corner.roundingType == reference.roundingType;
        agreement.sameRadii = agreement.sameRadii && SameRadius(corner.radius, reference.radius);
        if (!agreement.sameType && !agreement.sameRounding && !agreement.sameRadii) {
            break;
        }
    }
    return agreement;
}

const char* SameText(bool same) { return same ? "Same Value" : "Different Value"; }

void LogAgreement(const CornerAgreement& agreement) {
    ZMUsageGroup group = nullptr;
    if (BeginUsageGroup("Shape Document Close Group", group) != ZM_ERR_NONE) {
        return;
    }
    AddUsageEntry(group, "Shape Corner Type", SameText(agreement.sameType));
    AddUsageEntry(group, "Shape Rounding Type", SameText(agreement.sameRounding));
    AddUsageEntry(group, "Shape Radii", SameText(agreement.sameRadii));
}

// Gives the corners object back on every path.
class CornersObject {
public:
    CornersObject() { error_ = sLiveCornersSuite->NewCorners(&corners_); }
    ~CornersObject() {
        if (corners_ != nullptr) {
            sLiveCornersSuite->DisposeCorners(corners_);
        }
    }
    CornersObject(const CornersObject&) = delete;
    CornersObject& operator=(const CornersObject&) = delete;

    ZMErr Error() const { return error_; }
    ZMLiveCornersHandle Get() const { return corners_; }

private:
    ZMLiveCornersHandle corners_ = nullptr;
    ZMErr error_ = ZM_ERR_NONE;
};

enum class ShapeResult { Next, Stop };

ShapeResult LogShape(ZMArtHandle art) {
    int16_t segmentCount = 0;
    std::vector<ZMPathSegment> segments;
    if (sPathSuite->GetPathSegmentCount(art, &segmentCount) == ZM_ERR_NONE && segmentCount > 0) {
        segments.resize(static_cast<std::size_t>(segmentCount));
        if (sPathSuite->GetPathSegments(art, 0, segmentCount, segments.data()) != ZM_ERR_NONE) {
            segments.clear();
        }
    }
    if (segments.empty()) {
        return ShapeResult::Next;
    }
    CornersObject corners;
    if (corners.Error() != ZM_ERR_NONE || corners.Get() == nullptr) {
        return ShapeResult::Stop;
    }
    int32_t cornerCount = 0;
    sLiveCornersSuite->LoadFromSegments(corners.Get(), segments.data(),
                                        static_cast<int32_t>(segments.size()),
                                        ZM_LIVE_CORNERS_FROM_LIVE_SHAPE);
    if (sLiveCornersSuite->CountCorners(corners.Get(), &cornerCount) != ZM_ERR_NONE ||
        cornerCount <= 0) {
        return ShapeResult::Next;
    }
    LogAgreement(CompareCorners(corners.Get()));
    return ShapeResult::Next;
}

}  // namespace

void LogLiveShapeStatistics() {
    ScopedAppContext context;
    ArtMatcher matcher(1);
    if (matcher.CriterionCount() < 1) {
        return;
    }
    // Any art, no attribute filter.
    matcher.Criterion(0) = ZMMatchCriterion{ZM_ART_ANY, 0, 0, 0};
    if (matcher.Match() != ZM_ERR_NONE) {
        return;
    }
    for (int32_t index = 0; index < matcher.MatchCount(); ++index) {
        ZMArtHandle art = matcher.MatchedArt(index);
        if (IsLiveShape(art) && LogShape(art) == ShapeResult::Stop) {
            return;
        }
    }
}

}  // namespace tolvane
