#include <zelmora/ZMPathSuite.h>

#include <cmath>
#include <cstddef>
#include <limits>

#include "document/PathMeasure.hpp"
#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

const document::PathGeometry& PathOf(Runtime& runtime, ZMArtHandle art) {
    CurrentDocument(runtime);
    return ArtOf(art, document::ArtType::Path).path;
}

ZMPathSegment ToSegmentRecord(const document::Segment& segment) {
    ZMPathSegment record{};
    record.anchor = {segment.anchor.x, segment.anchor.y};
    record.in = {segment.in.x, segment.in.y};
    record.out = {segment.out.x, segment.out.y};
    record.corner = segment.corner ? 1 : 0;
    return record;
}

ZMErr ZM_API GetPathSegmentCount(ZMArtHandle path, int16_t* count) {
    return GuardSuiteCall(ZM_PATH_SUITE_NAME, 0, [&](Runtime& runtime) {
        const document::PathGeometry& geometry = PathOf(runtime, path);
        RequireArguments(count);
        // A count that wraps round would be a wrong answer that looks right.
        if (geometry.segments.size() > static_cast<std::size_t>(INT16_MAX)) {
            throw HostError(ZM_ERR_TOO_MANY_SEGMENTS, "more segments than a 16-bit count holds");
        }
        *count = static_cast<int16_t>(geometry.segments.size());
    });
}

ZMErr ZM_API GetPathSegments(ZMArtHandle path, int16_t first, int16_t count,
                             ZMPathSegment* segments) {
    return GuardSuiteCall(ZM_PATH_SUITE_NAME, 1, [&](Runtime& runtime) {
        const document::PathGeometry& geometry = PathOf(runtime, path);
        RequireArguments(segments);
        if (first < 0 || count < 0 ||
            static_cast<std::size_t>(first) + static_cast<std::size_t>(count) >
                geometry.segments.size()) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "segments outside the path");
        }
        for (int16_t i = 0; i < count; ++i) {
            segments[i] = ToSegmentRecord(geometry.segments[static_cast<std::size_t>(first + i)]);
        }
    });
}

ZMErr ZM_API GetPathClosed(ZMArtHandle path, ZMBool* closed) {
    return GuardSuiteCall(ZM_PATH_SUITE_NAME, 2, [&](Runtime& runtime) {
        const document::PathGeometry& geometry = PathOf(runtime, path);
        RequireArguments(closed);
        *closed = geometry.closed ? 1 : 0;
    });
}

ZMErr ZM_API GetPathLength(ZMArtHandle path, double* length, double flatness) {
    return GuardSuiteCall(ZM_PATH_SUITE_NAME, 3, [&](Runtime& runtime) {
        const document::PathGeometry& geometry = PathOf(runtime, path);
        RequireArguments(length);
        if (!(flatness > 0) || !std::isfinite(flatness)) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "flatness must be a positive number");
        }
        *length = document::PathLength(geometry, flatness);
    });
}

ZMPathSuite MakeTable() {
    ZMPathSuite table{};
    table.GetPathSegmentCount = GetPathSegmentCount;
    table.GetPathSegments = GetPathSegments;
    table.GetPathClosed = GetPathClosed;
    table.GetPathLength = GetPathLength;
    return table;
}

const ZMPathSuite kTable = MakeTable();

}  // namespace

void RegisterPathSuite(SuiteRegistry& registry) {
    registry.Add(ZM_PATH_SUITE_NAME, ZM_PATH_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
