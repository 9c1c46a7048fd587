#include "stats/DocumentContentStatistics.hpp"

#include "shell/SuiteSet.hpp"
#include "stats/LiveShapeStatistics.hpp"
#include "stats/StatisticsRecord.hpp"
#include "stats/StatisticsWalk.hpp"
#include "stats/UsageEntries.hpp"

#include <zelmora/ZMDocumentSuite.h>

namespace tolvane {

namespace {

// Keeps the artboard list while the entries are written and gives it back on every path.
class ArtboardCount {
public:
    ArtboardCount() {
        if (sArtboardSuite->GetArtboardList(&list_) == ZM_ERR_NONE && list_ != nullptr) {
            sArtboardSuite->CountArtboards(list_, &count_);
        }
    }
    ~ArtboardCount() {
        if (list_ != nullptr) {
            sArtboardSuite->ReleaseArtboardList(list_);
        }
    }
    ArtboardCount(const ArtboardCount&) = delete;
    ArtboardCount& operator=(const ArtboardCount&) = delete;

    int32_t Count() const { return count_; }

private:
    ZMArtboardList list_ = nullptr;
    int32_t count_ = 0;
};

uint32_t TopLevelLayers() {
    int32_t count = 0;
    if (sLayerSuite == nullptr || sLayerSuite->CountLayers(&count) != ZM_ERR_NONE) {
        return 0;
    }
    return static_cast<uint32_t>(count);
}

uint32_t Length(const SurveyStringList& list) {
    return static_cast<uint32_t>(CountSurveyStrings(list));
}

// The log's fixed texts, never localized.
const char* ColorModelText(uint16_t model) {
    switch (model) {
        case ZM_COLOR_MODEL_GRAY:
            return "Grayscale";
        case ZM_COLOR_MODEL_RGB:
            return "RGB";
        case ZM_COLOR_MODEL_CMYK:
            return "CMYK";
        default:
            return "";
    }
}

struct NumberEntry {
    const char* key;
    uint32_t value;
};

// The group's entries in the order the log keeps them; a failing entry does not stop the
// rest.
void AddContentEntries(ZMUsageGroup group) {
    const StatisticsRecord& record = gStatistics->record;
    const SurveyLists& lists = gStatistics->collected.lists;
    ArtboardCount artboards;
    const NumberEntry numbers[] = {
        {"Artboards", static_cast<uint32_t>(artboards.Count())},
        {"Symbol Patterns", record.symbolInstanceCount},
        {"TopLevelLayers", TopLevelLayers()},
        {"OpenPaths", record.openPathCount},
        {"ClosedPaths", record.pathCount - record.openPathCount},
        {"PointObjects", record.pointCount},
        {"CompoundPaths", record.compoundPathCount},
        {"CompoundShapes", record.compoundShapeCount},
        {"GradientMeshes", record.meshCount},
        {"PointTypeObjects", record.pointTypeCount},
        {"AreaTypeObjects", record.areaTypeCount},
        {"TypeOnPathObjects", record.pathTypeCount},
        {"ClippingMasks", record.clipMaskCount},
        {"OpacityMasks", record.opacityMaskCount},
        {"GrayScaleObjects", record.grayObjectCount},
        {"GraphicStylesUsed", Length(lists.graphicStyleList)},
        {"BrushesUsed", Length(lists.brushList)},
        {"SpotColorsUsed", Length(lists.spotColorList)},
        {"PatternObjectsUsed", Length(lists.patternList)},
        {"GlobalProcessColorsUsed", record.globalProcessColorCount},
        {"GradientObjectsUsed", Length(lists.gradientList)},
        {"FontsUsed", record.fontCount},
        {"LinkedImages", record.linkedImageCount},
        {"EmbeddedImages", record.embeddedImageCount},
        {"TracingObjects", record.tracingObjectCount},
        {"BlendObjects", record.blendCount},
        {"FlareObjects", record.flareCount},
        {"EnvelopeObjects", record.envelopeCount},
        {"GraphObjects", record.graphCount},
    };
    for (const NumberEntry& entry : numbers) {
        AddUsageNumber(group, entry.key, entry.value);
    }
    AddUsageEntry(group, "Fontvane Font in document",
                  record.onlineFontInDocument != 0 ? "Yes" : "No");
    AddUsageEntry(group, "Color Model", ColorModelText(record.colorModel));
}

}  // namespace

void LogDocumentContentStatistics() {
    // The block comes zero-filled: its lists start empty.
    if (MakeStatistics() != ZM_ERR_NONE) {
        return;
    }
    SurveyForStatistics();
    ZMUsageGroup group = nullptr;
    if (sQuorvelPipSuite != nullptr &&
        BeginUsageGroup("Document Content Information", group) == ZM_ERR_NONE) {
        AddContentEntries(group);
        LogLiveShapeStatistics();
    }
    FreeStatistics();
}

}  // namespace tolvane
