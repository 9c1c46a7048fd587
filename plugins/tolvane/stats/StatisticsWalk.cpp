#include "stats/StatisticsWalk.hpp"

#include "inventory/CategoryGate.hpp"
#include "inventory/ColorInventory.hpp"
#include "inventory/ProcessColorTally.hpp"
#include "inventory/StyleInventory.hpp"
#include "report/HostFilePath.hpp"
#include "shell/SuiteSet.hpp"
#include "stats/StatisticsRecord.hpp"
#include "survey/ArtWalk.hpp"
#include "survey/PluginGroups.hpp"
#include "survey/TextFrameSurvey.hpp"

namespace tolvane {

namespace {

StatisticsRecord& Record() { return gStatistics->record; }

ZMErr CountGraph(ZMArtHandle art) {
    ZMBool isGraph = 0;
    if (ZMErr error = sArtSuite->IsArtGraph(art, &isGraph); error != ZM_ERR_NONE) {
        return error;
    }
    if (isGraph != 0) {
        ++Record().graphCount;
    }
    return ZM_ERR_NONE;
}

// Placed art counts as a linked image whenever the host can say which file it places.
ZMErr CountPlaced(ZMArtHandle art) {
    HostFilePath file;
    if (sPlacedSuite->GetPlacedFilePath(art, file.Get()) == ZM_ERR_NONE && file.Get() != nullptr) {
        ++Record().linkedImageCount;
    }
    return ZM_ERR_NONE;
}

// An image whose pixels the document holds is embedded; any other is linked.
ZMErr CountRaster(ZMArtHandle art) {
    HostFilePath file;
    ZMRasterLink link{};
    link.file = file.Get();
    if (ZMErr error = sRasterSuite->GetRasterLink(art, &link); error != ZM_ERR_NONE) {
        return error;
    }
    if (link.linkState != ZM_RASTER_LINK_FILE || link.sourceKind == ZM_RASTER_SOURCE_DOCUMENT) {
        ++Record().embeddedImageCount;
    } else {
        ++Record().linkedImageCount;
    }
    return ZM_ERR_NONE;
}

// A mesh's colours are tallied like the panel's, into the collected survey; what they cannot
// tell is no reason to stop counting.
ZMErr CountMesh(ZMArtHandle art, int32_t inMask) {
    ++Record().meshCount;
    ColorTally tally{inMask, 0};
    sMeshSuite->ForEachMeshColor(art, AddColorAndCount, &tally);
    return ZM_ERR_NONE;
}

ZMErr CountTextFrame(ZMArtHandle art) {
    if (ZMErr error = CountFrameKind(art); error != ZM_ERR_NONE) {
        return error;
    }
    return OfferFrameFonts(art);
}

ZMErr CountByType(ZMArtHandle art, ZMArtType type, int32_t inMask) {
    switch (type) {
        case ZM_ART_UNKNOWN:
            return CountGraph(art);
        case ZM_ART_PATH:
            return VisitPath(art);
        case ZM_ART_COMPOUND_PATH:
            ++Record().compoundPathCount;
            return ZM_ERR_NONE;
        case ZM_ART_PLACED:
            return CountPlaced(art);
        case ZM_ART_RASTER:
            return CountRaster(art);
        case ZM_ART_PLUGIN_GROUP:
            return ClassifyPluginGroup(art);
        case ZM_ART_MESH:
            return CountMesh(art, inMask);
        case ZM_ART_TEXT_FRAME:
            return CountTextFrame(art);
        case ZM_ART_SYMBOL_INSTANCE:
            ++Record().symbolInstanceCount;
            return ZM_ERR_NONE;
        default:
            return ZM_ERR_NONE;
    }
}

// The shared walk pieces (paths, masks, plug-in groups, fonts, paints) count into the
// collected survey; their figures join the record here, once the count is over.
void TakeCollectedCounts() {
    const SurveyRecord& collected = gStatistics->collected.record;
    StatisticsRecord& record = Record();
    record.pathCount = static_cast<uint32_t>(collected.pathCount);
    record.openPathCount = static_cast<uint32_t>(collected.openPathCount);
    record.pointCount = static_cast<uint32_t>(collected.pointCount);  // -1 stays all ones
    record.clipMaskCount = static_cast<uint32_t>(collected.clipMaskCount);
    record.opacityMaskCount = static_cast<uint32_t>(collected.opacityMaskCount);
    record.fontCount = static_cast<uint32_t>(collected.fontCount);
    record.grayObjectCount = static_cast<uint32_t>(collected.grayObjectCount);
    record.secondColorKindCount = static_cast<uint32_t>(collected.rgbObjectCount);
    record.compoundShapeCount = static_cast<uint32_t>(collected.compoundShapeCount);
    record.blendCount = static_cast<uint32_t>(collected.blendCount);
    record.tracingObjectCount = static_cast<uint32_t>(collected.tracingObjectCount);
    record.envelopeCount = static_cast<uint32_t>(collected.envelopeCount);
    record.flareCount = static_cast<uint32_t>(collected.flareCount);
    record.pointTypeCount = static_cast<uint32_t>(collected.pointTypeCount);
    record.areaTypeCount = static_cast<uint32_t>(collected.areaTypeCount);
    record.pathTypeCount = static_cast<uint32_t>(collected.pathTypeCount);
}

void ClassifyMatches(const ZMArtHandle* matches, int32_t count) {
    for (int32_t index = 0; index < count; ++index) {
        PaintKind paintKinds = 0;
        if (ClassifyForStatistics(matches[index], paintKinds, 0) != ZM_ERR_NONE) {
            break;  // the counts so far stay
        }
    }
}

}  // namespace

ZMErr ClassifyForStatistics(ZMArtHandle art, PaintKind& paintKinds, int32_t inMask) {
    ZMArtType type = ZM_ART_UNKNOWN;
    if (ZMErr error = sArtSuite->GetArtType(art, &type); error != ZM_ERR_NONE) {
        return error;
    }
    // What goes wrong inside a mask stays there: the masked art is still counted.
    VisitMaskedArt(art, paintKinds, ClassifyForStatistics);
    if (ZMErr error = CheckStyle(art, type, paintKinds, inMask); error != ZM_ERR_NONE) {
        return error;
    }
    return CountByType(art, type, inMask);
}

void SurveyForStatistics() {
    StatisticsRecord& record = Record();
    record.colorModel = 0xFFFF;
    int16_t model = 0;
    if (sDocumentSuite->GetDocumentColorModel(&model) != ZM_ERR_NONE) {
        return;
    }
    record.colorModel = static_cast<uint16_t>(model);
    // Every collector runs, into the statistics' own survey.
    EveryCategory everyCategory;
    CollectInto collectInto(gStatistics->collected);
    GatherProcessColors processColors(gStatistics->processColorList,
                                      record.globalProcessColorCount);
    // Members of compound paths are left out: the compound path speaks for them.
    const ZMMatchCriterion criterion{ZM_ART_ANY, 0, ZM_ART_COMPOUND_MEMBER, 0};
    ZMLayerList layers = nullptr;
    ZMMdMemoryHandle matches = nullptr;
    int32_t matchCount = 0;
    if (sLayerListSuite->GetCurrentLayerList(&layers) == ZM_ERR_NONE &&
        sMatchingArtSuite->GetMatchingArtOfLayerList(layers, &criterion, 1, &matches,
                                                     &matchCount) == ZM_ERR_NONE &&
        matches != nullptr) {
        void* block = nullptr;
        if (sMdMemorySuite->MdMemoryHandleDeref(matches, &block) == ZM_ERR_NONE) {
            ClassifyMatches(static_cast<const ZMArtHandle*>(block), matchCount);
        }
        sMdMemorySuite->DisposeHandle(matches);
    }
    TakeCollectedCounts();
}

}  // namespace tolvane
