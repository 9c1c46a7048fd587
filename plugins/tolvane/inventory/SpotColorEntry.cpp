#include "inventory/ColorInventory.hpp"

#include "inventory/FetchedName.hpp"
#include "inventory/ListEntry.hpp"
#include "report/LoadTolvaneString.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

namespace tolvane {

namespace {

// The model word of a swatch kind; null for a kind without one.
const char* ModelKey(int16_t kind) {
    switch (kind) {
        case ZM_CUSTOM_COLOR_FOUR:
            return keys::kSpotCmyk;
        case ZM_CUSTOM_COLOR_THREE:
            return keys::kSpotRgb;
        case ZM_CUSTOM_COLOR_LAB:
            return keys::kSpotLab;
        default:
            return nullptr;
    }
}

}  // namespace

ZMErr AddSpotColorEntry(ZMCustomColorHandle color, ZMErr code, const char* label) {
    return zm::CodeOrNoMemory([&]() -> ZMErr {
        HostString name = FetchName(sCustomColorSuite->GetCustomColorName, color);
        ZMCustomColor record{};
        zm::Check(sCustomColorSuite->GetCustomColor(color, &record));
        // A kind without a model word lists an empty entry, name and all.
        HostString entry = HostString::Empty();
        if (const char* key = ModelKey(record.kind)) {
            entry.Append(name);
            HostString blank = MakeUnicodeFromBytes(" ", ZM_ENCODING_UTF8);
            entry.Append(blank);
            entry.Append(LoadTolvaneString(key));
        }
        SurveyStringList& spots = CollectingSurvey().lists.spotColorList;
        if (LinkStrFind(spots, entry.Get())) {
            return ZM_ERR_NONE;
        }
        return InsertOrAlert(spots, entry.Get(), code, label);
    });
}

}  // namespace tolvane
