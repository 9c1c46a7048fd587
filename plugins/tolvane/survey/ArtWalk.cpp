#include "survey/ArtWalk.hpp"

#include "inventory/CategoryGate.hpp"
#include "inventory/ColorInventory.hpp"
#include "inventory/ImageInventory.hpp"
#include "inventory/StyleInventory.hpp"
#include "panel/PanelCategories.hpp"
#include "report/Error.hpp"
#include "report/LoadTolvaneString.hpp"
#include "shell/Globals.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/ForeignObjectSurvey.hpp"
#include "survey/PluginGroups.hpp"
#include "survey/SurveyRecord.hpp"
#include "survey/TextFrameSurvey.hpp"

namespace tolvane {

namespace {

// Flatness for path lengths, in points.
constexpr double kPathLengthFlatness = 0.5;

SurveyRecord& Record() { return CollectingSurvey().record; }

ZMErr CountGraph(ZMArtHandle art, PaintKind&, int32_t) {
    ZMBool isGraph = 0;
    if (ZMErr error = sArtSuite->IsArtGraph(art, &isGraph); error != ZM_ERR_NONE) {
        return error;
    }
    if (isGraph != 0) {
        ++Record().graphCount;
    }
    return ZM_ERR_NONE;
}

ZMErr SurveyPath(ZMArtHandle art, PaintKind&, int32_t) { return VisitPath(art); }

ZMErr CountCompoundPath(ZMArtHandle, PaintKind&, int32_t) {
    ++Record().compoundPathCount;
    return ZM_ERR_NONE;
}

ZMErr SurveyPluginGroup(ZMArtHandle art, PaintKind&, int32_t) { return ClassifyPluginGroup(art); }

// Placed art whose file is an image the host reads is described as an image; any other file
// by its path and type.
ZMErr SurveyPlaced(ZMArtHandle art, PaintKind&, int32_t) {
    ZMRasterRecord info{};
    info.colorSpace = ZM_RASTER_UNKNOWN;
    info.bitsPerPixel = 0;
    int32_t isRaster = 0;
    if (ZMErr error = sPlacedSuite->GetPlacedRasterInfo(art, &info, &isRaster);
        error != ZM_ERR_NONE) {
        return error;
    }
    return isRaster != 0 ? AddRasterArt(art, 1) : AddPlacedArt(art);
}

ZMErr SurveyRaster(ZMArtHandle art, PaintKind&, int32_t) { return AddRasterArt(art, 0); }

// Each colour of the mesh joins one set of marks kept for the whole mesh, and every mark set
// so far is counted again after each colour: a mesh of three colours, the first RGB, counts
// three RGB objects. What the colours cannot tell is no reason to stop the survey.
ZMErr CountMesh(ZMArtHandle art, PaintKind&, int32_t inMask) {
    ++Record().meshCount;
    ColorTally tally{inMask, 0};
    sMeshSuite->ForEachMeshColor(art, AddColorAndCount, &tally);
    return ZM_ERR_NONE;
}

ZMErr CountSymbolInstance(ZMArtHandle, PaintKind&, int32_t) {
    ++Record().symbolInstanceCount;
    return ZM_ERR_NONE;
}

ZMErr SurveyForeignObject(ZMArtHandle art, PaintKind&, int32_t inMask) {
    return VisitForeignObject(art, inMask);
}

ZMErr CountChart(ZMArtHandle, PaintKind&, int32_t) {
    ++Record().chartCount;
    return ZM_ERR_NONE;
}

// The categories that need each piece of work (a save needs all of them).
bool ObjectsShown() { return ShownOrSaving({kModeObjects}); }

bool MeshColorsShown() { return ShownOrSaving({kModeObjects, kModeSpotColors}); }

bool PlacedImagesShown() {
    return ShownOrSaving({kModeObjects, kModeLinkedImages, kModeEmbeddedImages});
}

// Rasters also show in the spot colour category, for the spot inks of their colour spaces.
bool RasterImagesShown() {
    return ShownOrSaving({kModeObjects, kModeSpotColors, kModeLinkedImages, kModeEmbeddedImages});
}

// Text frames are counted in Objects, their paints fill the spot colour and pattern lists,
// and their fonts the two font lists.
bool TextShown() {
    return ShownOrSaving(
        {kModeObjects, kModeSpotColors, kModePatterns, kModeFonts, kModeFontDetails});
}

bool ForeignObjectsShown() {
    return ShownOrSaving({kModeObjects, kModeSpotColors, kModeFonts, kModeFontDetails});
}

bool PaintShown() {
    return ShownOrSaving({kModeObjects, kModeGraphicStyles, kModeBrushes, kModeSpotColors,
                          kModePatterns, kModeGradients});
}

// What each art type adds to the survey beyond its paint, and the categories that need it.
// Compound paths, symbol instances, charts and graphs count in every category: in the font
// categories they are never matched anyway.
struct TypeWork {
    ZMArtType type;
    bool (*needed)();  // null: always
    ZMErr (*work)(ZMArtHandle art, PaintKind& paintKinds, int32_t inMask);
};

constexpr TypeWork kTypeWork[] = {
    {ZM_ART_UNKNOWN, nullptr, CountGraph},
    {ZM_ART_PATH, ObjectsShown, SurveyPath},
    {ZM_ART_COMPOUND_PATH, nullptr, CountCompoundPath},
    {ZM_ART_PLACED, PlacedImagesShown, SurveyPlaced},
    {ZM_ART_RASTER, RasterImagesShown, SurveyRaster},
    {ZM_ART_PLUGIN_GROUP, ObjectsShown, SurveyPluginGroup},
    {ZM_ART_MESH, MeshColorsShown, CountMesh},
    {ZM_ART_TEXT_FRAME, TextShown, VisitTextFrame},
    {ZM_ART_SYMBOL_INSTANCE, nullptr, CountSymbolInstance},
    {ZM_ART_FOREIGN_OBJECT, ForeignObjectsShown, SurveyForeignObject},
    {ZM_ART_CHART, nullptr, CountChart},
};

// The mask art and everything it holds, depth first; a plug-in group is entered through its
// result group, which is not visited itself.
ZMErr WalkMaskArt(ZMArtHandle art, PaintKind& paintKinds, ArtVisitor visit) {
    if (ZMErr error = visit(art, paintKinds, 1); error != ZM_ERR_NONE) {
        return error;
    }
    ZMArtType type = ZM_ART_UNKNOWN;
    if (ZMErr error = sArtSuite->GetArtType(art, &type); error != ZM_ERR_NONE) {
        return error;
    }
    ZMArtHandle holder = art;
    if (type == ZM_ART_PLUGIN_GROUP) {
        if (ZMErr error = sPluginGroupSuite->GetPluginArtResultGroup(art, &holder);
            error != ZM_ERR_NONE) {
            return error;
        }
    }
    ZMArtHandle child = nullptr;
    if (ZMErr error = sArtSuite->GetArtFirstChild(holder, &child); error != ZM_ERR_NONE) {
        return error;
    }
    while (child != nullptr) {
        if (ZMErr error = WalkMaskArt(child, paintKinds, visit); error != ZM_ERR_NONE) {
            return error;
        }
        if (ZMErr error = sArtSuite->GetArtSibling(child, &child); error != ZM_ERR_NONE) {
            return error;
        }
    }
    return ZM_ERR_NONE;
}

// The matching request: all art, or only what is selected; in the font categories only text
// frames and foreign objects, the only art that names fonts. Members of compound paths are
// left out of the first criterion: the compound path speaks for them.
int32_t BuildCriteria(ZMMatchCriterion (&criteria)[2]) {
    const Globals& globals = *gGlobals;
    const uint32_t selected = globals.selectionOnly != 0 ? ZM_ART_SELECTED : 0u;
    const bool fontsOnly = globals.mode == kModeFonts || globals.mode == kModeFontDetails;
    criteria[0] = {fontsOnly ? int16_t{ZM_ART_TEXT_FRAME} : int16_t{ZM_ART_ANY}, 0,
                   selected | ZM_ART_COMPOUND_MEMBER, selected};
    criteria[1] = {ZM_ART_FOREIGN_OBJECT, 0, selected, selected};
    return fontsOnly ? 2 : 1;
}

// Shows the survey's progress while it lives; a display that cannot be shown is no reason
// to stop surveying. Only a display this object began is ended.
class SurveyProgress {
public:
    SurveyProgress() {
        shown_ = zm::CodeOf([] {
                     HostString text = LoadTolvaneString(ResFilter, 3);
                     return sUserSuite->BeginProgress(text.Get());
                 }) == ZM_ERR_NONE;
    }
    ~SurveyProgress() {
        if (shown_) {
            sUserSuite->EndProgress();
        }
    }
    SurveyProgress(const SurveyProgress&) = delete;
    SurveyProgress& operator=(const SurveyProgress&) = delete;

    void Update(int32_t current, int32_t maximum) {
        if (shown_) {
            sUserSuite->UpdateProgress(current, maximum);
        }
    }

private:
    bool shown_ = false;
};

void VisitMatches(const ZMArtHandle* matches, int32_t count) {
    SurveyProgress progress;
    for (int32_t index = 0; index < count; ++index) {
        if (index % 4 == 0) {
            progress.Update(index, count);
        }
        PaintKind paintKinds = 0;
        if (VisitArt(matches[index], paintKinds, 0) != ZM_ERR_NONE) {
            break;  // the counts so far stay
        }
    }
}

}  // namespace

ZMErr RunSurvey() {
    ZMMatchCriterion criteria[2];
    const int32_t criterionCount = BuildCriteria(criteria);
    ZMLayerList layers = nullptr;
    ZMMdMemoryHandle matches = nullptr;
    int32_t matchCount = 0;
    if (sLayerListSuite->GetCurrentLayerList(&layers) != ZM_ERR_NONE ||
        sMatchingArtSuite->GetMatchingArtOfLayerList(layers, criteria, criterionCount, &matches,
                                                     &matchCount) != ZM_ERR_NONE) {
        return ZM_ERR_NONE;  // nothing to survey: the record stays as it was
    }
    // No match comes without a handle; a handle that cannot be read is surveyed as empty.
    void* block = nullptr;
    if (matches == nullptr || sMdMemorySuite->MdMemoryHandleDeref(matches, &block) != ZM_ERR_NONE) {
        matchCount = 0;
    }
    VisitMatches(static_cast<const ZMArtHandle*>(block), matchCount);
    if (matches != nullptr) {
        sMdMemorySuite->DisposeHandle(matches);
    }
    return ZM_ERR_NONE;
}

ZMErr VisitArt(ZMArtHandle art, PaintKind& paintKinds, int32_t inMask) {
    ZMArtType type = ZM_ART_UNKNOWN;
    if (ZMErr error = sArtSuite->GetArtType(art, &type); error != ZM_ERR_NONE) {
        return error;
    }
    if (ObjectsShown()) {
        // What goes wrong inside a mask stays there: the masked art is still surveyed.
        VisitMaskedArt(art, paintKinds);
    }
    // The paint, brushes, graphic style and blending of the art, for the categories that show
    // any of them. The mask was surveyed first, so its marks are part of the art's.
    if (PaintShown()) {
        if (ZMErr error = CheckStyle(art, type, paintKinds, inMask); error != ZM_ERR_NONE) {
            return error;
        }
    }
    for (const TypeWork& entry : kTypeWork) {
        if (entry.type == type) {
            bool needed = entry.needed == nullptr || entry.needed();
            return needed ? entry.work(art, paintKinds, inMask) : ZM_ERR_NONE;
        }
    }
    return ZM_ERR_NONE;
}

ZMErr VisitPath(ZMArtHandle art) {
    SurveyRecord& record = Record();
    ++record.pathCount;
    if (record.pointCount >= 0) {
        int16_t segments = 0;
        if (ZMErr error = sPathSuite->GetPathSegmentCount(art, &segments); error != ZM_ERR_NONE) {
            return error;
        }
        AddPoints(record, segments);
    }
    ZMBool closed = 0;
    if (ZMErr error = sPathSuite->GetPathClosed(art, &closed); error != ZM_ERR_NONE) {
        return error;
    }
    if (closed == 0) {
        ++record.openPathCount;
    }
    if (record.totalPathLength >= 0.0) {
        double length = 0.0;
        if (ZMErr error = sPathSuite->GetPathLength(art, &length, kPathLengthFlatness);
            error != ZM_ERR_NONE) {
            return error;
        }
        AddPathLength(record, length);
    }
    // A style that cannot be read is simply not a clipping path.
    ZMPathStyle style{};
    if (sPathStyleSuite->GetPathStyle(art, &style) == ZM_ERR_NONE && style.clip != 0) {
        ++record.clipMaskCount;
    }
    return ZM_ERR_NONE;
}

ZMErr VisitMaskedArt(ZMArtHandle art, PaintKind& paintKinds, ArtVisitor visit) {
    ZMMaskHandle mask = nullptr;
    if (ZMErr error = sMaskSuite->GetMask(art, &mask); error != ZM_ERR_NONE) {
        return error;
    }
    if (mask == nullptr) {
        return ZM_ERR_NONE;
    }
    ++Record().opacityMaskCount;
    ZMArtHandle maskArt = nullptr;
    ZMErr error = sMaskSuite->GetMaskArt(mask, &maskArt);
    if (error == ZM_ERR_NONE && maskArt != nullptr) {
        error = WalkMaskArt(maskArt, paintKinds, visit);
    }
    sMaskSuite->ReleaseMask(mask);
    return error;
}

}  // namespace tolvane
