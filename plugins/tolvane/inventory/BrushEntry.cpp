#include "inventory/StyleInventory.hpp"

#include "inventory/CategoryGate.hpp"
#include "inventory/FetchedName.hpp"
#include "inventory/ListEntry.hpp"
#include "panel/PanelCategories.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

#include <string>

namespace tolvane {

namespace {

// The brush, or null when the field is a fill or carries no brush. Brushes are looked for on
// strokes only, and only in the field's first effect.
ZMErr BrushOfField(ZMParserPaintField field, ZMBrushHandle& brush) {
    brush = nullptr;
    ZMBool fill = 0;
    if (ZMErr error = sArtStyleParserSuite->IsFill(field, &fill); error != ZM_ERR_NONE) {
        return error;
    }
    if (fill != 0) {
        return ZM_ERR_NONE;
    }
    ZMLiveEffectHandle effect = nullptr;
    if (ZMErr error = sArtStyleParserSuite->GetLiveEffect(field, 0, &effect);
        error != ZM_ERR_NONE) {
        return error;
    }
    if (effect == nullptr) {
        return ZM_ERR_NONE;
    }
    return sBrushMgrSuite->GetBrushForLiveEffect(effect, &brush);
}

// "Name (Type)", the type's title without its first "&" ("&Art Brush" is "Art Brush"). No
// entry (a null string) for a brush without a type.
HostString BrushEntryText(ZMBrushHandle brush) {
    HostString entry = FetchName(sBrushMgrSuite->GetBrushName, brush);
    ZMBrushTypeHandle type = nullptr;
    zm::Check(sBrushMgrSuite->GetBrushType(brush, &type));
    if (type == nullptr) {
        return HostString();
    }
    const char* title = nullptr;
    zm::Check(sBrushMgrSuite->GetBrushTypeTitle(type, &title));
    std::string shown = title != nullptr ? title : "";
    if (std::string::size_type ampersand = shown.find('&'); ampersand != std::string::npos) {
        shown.erase(ampersand, 1);
    }
    entry.Append(MakeUnicodeFromBytes((" (" + shown + ")").c_str(), ZM_ENCODING_UTF8));
    return entry;
}

// Lists the brush unless its entry is there. A list that cannot take it shows the alert and
// gives '!MEM'.
ZMErr ListBrush(ZMBrushHandle brush) {
    return zm::CodeOrNoMemory([&]() -> ZMErr {
        HostString entry = BrushEntryText(brush);
        SurveyStringList& brushes = CollectingSurvey().lists.brushList;
        if (entry.Get() == nullptr || LinkStrFind(brushes, entry.Get())) {
            return ZM_ERR_NONE;
        }
        return InsertOrAlert(brushes, entry.Get(), kAlertIdStyle, "CheckForBrush:LinkStrAdd");
    });
}

}  // namespace

ZMErr CheckForBrush(ZMStyleParser parser) {
    int32_t fieldCount = 0;
    if (ZMErr error = sArtStyleParserSuite->CountPaintFields(parser, &fieldCount);
        error != ZM_ERR_NONE) {
        return error;
    }
    ZMErr result = ZM_ERR_NONE;
    for (int32_t i = 0; i < fieldCount; ++i) {
        ZMParserPaintField field = nullptr;
        if (ZMErr error = sArtStyleParserSuite->GetNthPaintField(parser, i, &field);
            error != ZM_ERR_NONE) {
            return error;
        }
        ZMBrushHandle brush = nullptr;
        if (ZMErr error = BrushOfField(field, brush); error != ZM_ERR_NONE) {
            return error;
        }
        if (brush == nullptr) {
            continue;
        }
        // Once per brushed stroke: an object with two brushed strokes counts twice.
        ++CollectingSurvey().record.brushedObjectCount;
        if (!ShownOrSaving({kModeBrushes})) {
            continue;
        }
        result = ListBrush(brush);
        // A brush the list could not take ends nothing: the next stroke is still looked at.
        if (result != ZM_ERR_NONE && result != ZM_ERR_NO_MEMORY) {
            return result;
        }
    }
    return result;
}

}  // namespace tolvane
