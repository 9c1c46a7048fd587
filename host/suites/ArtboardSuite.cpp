#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMArtboardSuite.h>

#include <limits>
#include <memory>
#include <vector>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_ARTBOARD_SUITE_NAME;

// A copy, so that a list outlives its document safely.
struct ArtboardList {
    std::vector<document::Artboard> artboards;
};

ArtboardList& RequireList(Runtime& runtime, ZMArtboardList list) {
    return runtime.objects.Require<ArtboardList>(list);
}

const document::Artboard& RequireArtboard(Runtime& runtime, ZMArtboardList list, int32_t index) {
    const std::vector<document::Artboard>& artboards = RequireList(runtime, list).artboards;
    if (index < 0 || static_cast<std::size_t>(index) >= artboards.size()) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "artboard index out of range");
    }
    return artboards[static_cast<std::size_t>(index)];
}

ZMErr ZM_API GetArtboardList(ZMArtboardList* list) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(list);
        auto copy = std::make_unique<ArtboardList>(ArtboardList{document.artboards});
        *list = reinterpret_cast<ZMArtboardList>(&runtime.objects.Add(std::move(copy)));
    });
}

ZMErr ZM_API ReleaseArtboardList(ZMArtboardList list) {
    return GuardSuiteCall(kSuite, 1,
                          [&](Runtime& runtime) { runtime.objects.Release<ArtboardList>(list); });
}

ZMErr ZM_API CountArtboards(ZMArtboardList list, int32_t* count) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const std::vector<document::Artboard>& artboards = RequireList(runtime, list).artboards;
        RequireArguments(count);
        if (artboards.size() > static_cast<std::size_t>(std::numeric_limits<int32_t>::max())) {
            throw HostError(ZM_ERR_INTERNAL, "too many artboards to count");
        }
        *count = static_cast<int32_t>(artboards.size());
    });
}

ZMErr ZM_API GetArtboardBounds(ZMArtboardList list, int32_t index, ZMRealRect* bounds) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const document::Rect& rect = RequireArtboard(runtime, list, index).bounds;
        RequireArguments(bounds);
        *bounds = ZMRealRect{rect.left, rect.top, rect.right, rect.bottom};
    });
}

ZMErr ZM_API GetArtboardName(ZMArtboardList list, int32_t index, ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        AssignUtf8(name, RequireArtboard(runtime, list, index).name);
    });
}

ZMArtboardSuite MakeTable() {
    ZMArtboardSuite table{};
    table.GetArtboardList = GetArtboardList;
    table.ReleaseArtboardList = ReleaseArtboardList;
    table.CountArtboards = CountArtboards;
    table.GetArtboardBounds = GetArtboardBounds;
    table.GetArtboardName = GetArtboardName;
    return table;
}

const ZMArtboardSuite kTable = MakeTable();

}  // namespace

void RegisterArtboardSuite(SuiteRegistry& registry) {
    registry.Add(ZM_ARTBOARD_SUITE_NAME, ZM_ARTBOARD_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
