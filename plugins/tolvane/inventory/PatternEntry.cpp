#include "inventory/ColorInventory.hpp"

#include "inventory/FetchedName.hpp"
#include "inventory/ListEntry.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"
#include "survey/TextFrameSurvey.hpp"

namespace tolvane {

namespace {

// Only the definition's top-level art is looked at: text set deeper, in a group of the tile,
// is deliberately not surveyed. The last sibling query's code is the answer.
ZMErr SurveyTopLevelText(ZMArtHandle definition, PaintKind& marks, int32_t skipSolid) {
    ZMArtHandle child = nullptr;
    ZMErr error = sArtSuite->GetArtFirstChild(definition, &child);
    while (error == ZM_ERR_NONE && child != nullptr) {
        ZMArtType type = ZM_ART_UNKNOWN;
        if (ZMErr typeError = sArtSuite->GetArtType(child, &type); typeError != ZM_ERR_NONE) {
            return typeError;
        }
        if (type == ZM_ART_TEXT_FRAME) {
            if (ZMErr textError = VisitTextFrame(child, marks, skipSolid);
                textError != ZM_ERR_NONE) {
                return textError;
            }
        }
        error = sArtSuite->GetArtSibling(child, &child);
    }
    return error;
}

}  // namespace

ZMErr AddPattern(ZMPatternHandle pattern, PaintKind& marks, int32_t skipSolid) {
    return zm::CodeOrNoMemory([&]() -> ZMErr {
        HostString name = FetchName(sPatternSuite->GetPatternName, pattern);
        SurveyStringList& patterns = CollectingSurvey().lists.patternList;
        // A pattern is examined the first time its name is met in a survey only.
        if (LinkStrFind(patterns, name.Get())) {
            return ZM_ERR_NONE;
        }
        if (ZMErr error =
                InsertOrAlert(patterns, name.Get(), kAlertIdNone, "AddPattern:LinkStrAdd");
            error != ZM_ERR_NONE) {
            return error;
        }
        ZMArtHandle definition = nullptr;
        zm::Check(sPatternSuite->GetPatternArt(pattern, &definition));
        if (definition == nullptr) {
            return ZM_ERR_NONE;
        }
        return SurveyTopLevelText(definition, marks, skipSolid);
    });
}

}  // namespace tolvane
