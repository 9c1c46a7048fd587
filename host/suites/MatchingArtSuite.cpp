#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMMatchingArtSuite.h>

#include <cstddef>
#include <limits>
#include <span>
#include <vector>

#include "document/ArtMatching.hpp"
#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/LayerHandles.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

// The plug-in side builds these 12-byte records by hand.
static_assert(sizeof(ZMMatchCriterion) == 12);

std::vector<document::MatchCriterion> ReadCriteria(const ZMMatchCriterion* criteria,
                                                   int32_t count) {
    RequireArguments(criteria);
    if (count < 1) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "no matching criteria");
    }
    std::vector<document::MatchCriterion> read;
    for (const ZMMatchCriterion& criterion : std::span(criteria, static_cast<std::size_t>(count))) {
        read.push_back({criterion.type, criterion.mask, criterion.value});
    }
    return read;
}

// Hands the matches over as a memory handle of art handles; no handle for no match.
void WriteMatches(Runtime& runtime, const document::Document& document,
                  std::span<const document::MatchCriterion> criteria, ZMMdMemoryHandle* matches,
                  int32_t* matchCount) {
    RequireArguments(matches, matchCount);
    std::vector<document::Layer*> layers = LayersOf(document);
    std::vector<document::Art*> found = document::MatchArt(layers, criteria);
    if (found.size() > static_cast<std::size_t>(std::numeric_limits<int32_t>::max())) {
        throw HostError(ZM_ERR_NO_MEMORY, "more matches than a count holds");
    }
    *matches = nullptr;
    *matchCount = 0;
    if (found.empty()) {
        return;
    }
    ZMMdMemoryHandle handle = runtime.memory.New(found.size() * sizeof(ZMArtHandle));
    auto* handles = static_cast<ZMArtHandle*>(runtime.memory.Address(handle));
    for (std::size_t index = 0; index < found.size(); ++index) {
        handles[index] = HandleOf(found[index]);
    }
    *matches = handle;
    *matchCount = static_cast<int32_t>(found.size());
}

ZMErr ZM_API GetMatchingArtOfLayerList(ZMLayerList list, const ZMMatchCriterion* criteria,
                                       int32_t count, ZMMdMemoryHandle* matches,
                                       int32_t* matchCount) {
    return GuardSuiteCall(ZM_MATCHING_ART_SUITE_NAME, 0, [&](Runtime& runtime) {
        const document::Document& document = DocumentOfList(CurrentDocument(runtime), list);
        WriteMatches(runtime, document, ReadCriteria(criteria, count), matches, matchCount);
    });
}

ZMErr ZM_API GetMatchingArt(const ZMMatchCriterion* criteria, int32_t count,
                            ZMMdMemoryHandle* matches, int32_t* matchCount) {
    return GuardSuiteCall(ZM_MATCHING_ART_SUITE_NAME, 1, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        WriteMatches(runtime, document, ReadCriteria(criteria, count), matches, matchCount);
    });
}

ZMErr ZM_API GetSelectedArt(ZMMdMemoryHandle* matches, int32_t* matchCount) {
    return GuardSuiteCall(ZM_MATCHING_ART_SUITE_NAME, 2, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        const document::MatchCriterion selected[] = {
            {ZM_ART_ANY, document::kArtSelected, document::kArtSelected}};
        WriteMatches(runtime, document, selected, matches, matchCount);
    });
}

ZMMatchingArtSuite MakeTable() {
    ZMMatchingArtSuite table{};
    table.GetMatchingArtOfLayerList = GetMatchingArtOfLayerList;
    table.GetMatchingArt = GetMatchingArt;
    table.GetSelectedArt = GetSelectedArt;
    return table;
}

const ZMMatchingArtSuite kTable = MakeTable();

}  // namespace

void RegisterMatchingArtSuite(SuiteRegistry& registry) {
    registry.Add(ZM_MATCHING_ART_SUITE_NAME, ZM_MATCHING_ART_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
