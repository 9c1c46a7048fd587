#include "inventory/ColorInventory.hpp"

#include "inventory/FetchedName.hpp"
#include "inventory/ListEntry.hpp"
#include "report/LoadTolvaneString.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

#include <string>
#include <string_view>

namespace tolvane {

namespace {

// The host's own name for gradients nobody named; it is shown in the user's language.
constexpr std::string_view kUnnamedGradient = "Unnamed gradient";

constexpr int16_t kGradientLinear = 1;
constexpr int16_t kGradientRadial = 2;
constexpr int16_t kGradientGray = 3;
constexpr int16_t kGradientRgb = 4;
constexpr int16_t kGradientCmyk = 5;
constexpr int16_t kGradientMixed = 6;
constexpr int16_t kGradientUnnamed = 7;

// The name, its unnamed prefix localized; what follows the prefix stays as it is.
HostString NamePart(ZMGradientHandle gradient) {
    HostString name = FetchName(sGradientSuite->GetGradientName, gradient);
    std::string bytes = ToBytes(name.Get(), ZM_ENCODING_UTF8);
    if (bytes.compare(0, kUnnamedGradient.size(), kUnnamedGradient) != 0) {
        return name;
    }
    HostString part = LoadTolvaneString(ResGradient, kGradientUnnamed);
    part.Append(MakeUnicodeFromBytes(bytes.c_str() + kUnnamedGradient.size(), ZM_ENCODING_UTF8));
    return part;
}

// " (linear)", " (radial)", or nothing for another type.
void AppendTypePart(ZMGradientHandle gradient, HostString& entry) {
    int16_t type = 0;
    zm::Check(sGradientSuite->GetGradientType(gradient, &type));
    if (type == ZM_GRADIENT_LINEAR) {
        entry.Append(LoadTolvaneString(ResGradient, kGradientLinear));
    } else if (type == ZM_GRADIENT_RADIAL) {
        entry.Append(LoadTolvaneString(ResGradient, kGradientRadial));
    }
}

struct StopTallies {
    int16_t gray = 0;
    int16_t cmyk = 0;
    int16_t rgb = 0;
    int16_t other = 0;
};

// A swatch stop counts under the swatch's own model, spot or not; one that cannot be read
// counts nowhere.
void TallyStop(const ZMColor& color, StopTallies& tallies) {
    switch (color.kind) {
        case ZM_COLOR_GRAY:
            ++tallies.gray;
            return;
        case ZM_COLOR_FOUR:
            ++tallies.cmyk;
            return;
        case ZM_COLOR_THREE:
            ++tallies.rgb;
            return;
        case ZM_COLOR_CUSTOM:
            break;
        default:
            ++tallies.other;
            return;
    }
    ZMCustomColor swatch{};
    if (sCustomColorSuite->GetCustomColor(color.c.custom.color, &swatch) != ZM_ERR_NONE) {
        return;
    }
    if (swatch.kind == ZM_CUSTOM_COLOR_FOUR) {
        ++tallies.cmyk;
    } else if (swatch.kind == ZM_CUSTOM_COLOR_THREE) {
        ++tallies.rgb;
    } else {
        ++tallies.other;
    }
}

// The stops' colour model. RGB is asked before CMYK and grayscale, so a gradient without
// stops, where every tally equals the count of 0, is an RGB one.
int16_t ModelPart(ZMGradientHandle gradient) {
    int16_t count = 0;
    zm::Check(sGradientSuite->GetGradientStopCount(gradient, &count));
    StopTallies tallies;
    for (int16_t i = 0; i < count; ++i) {
        ZMGradientStop stop{};
        zm::Check(sGradientSuite->GetNthGradientStop(gradient, i, &stop));
        TallyStop(stop.color, tallies);
    }
    if (tallies.other > 0) {
        return kGradientMixed;
    }
    if (tallies.rgb == count) {
        return kGradientRgb;
    }
    if (tallies.cmyk == count) {
        return kGradientCmyk;
    }
    if (tallies.gray == count) {
        return kGradientGray;
    }
    return kGradientMixed;
}

// Lists the spot colours of a gradient's stops. A stop that cannot be read ends the walk.
ZMErr AddSpotStops(ZMGradientHandle gradient) {
    int16_t count = 0;
    if (ZMErr error = sGradientSuite->GetGradientStopCount(gradient, &count);
        error != ZM_ERR_NONE) {
        return error;
    }
    for (int16_t i = 0; i < count; ++i) {
        ZMGradientStop stop{};
        if (ZMErr error = sGradientSuite->GetNthGradientStop(gradient, i, &stop);
            error != ZM_ERR_NONE) {
            return error;
        }
        if (stop.color.kind != ZM_COLOR_CUSTOM) {
            continue;
        }
        ZMCustomColor swatch{};
        if (sCustomColorSuite->GetCustomColor(stop.color.c.custom.color, &swatch) != ZM_ERR_NONE ||
            (swatch.flags & ZM_CUSTOM_COLOR_SPOT) == 0) {
            continue;
        }
        if (ZMErr error = AddSpotColorEntry(stop.color.c.custom.color, kAlertIdGradient,
                                            "AddGradient:LinkStrAdd");
            error != ZM_ERR_NONE) {
            return error;
        }
    }
    return ZM_ERR_NONE;
}

}  // namespace

ZMErr AddGradient(ZMGradientHandle gradient) {
    return zm::CodeOrNoMemory([&]() -> ZMErr {
        HostString entry = NamePart(gradient);
        AppendTypePart(gradient, entry);
        entry.Append(LoadTolvaneString(ResGradient, ModelPart(gradient)));
        SurveyStringList& gradients = CollectingSurvey().lists.gradientList;
        if (LinkStrFind(gradients, entry.Get())) {
            return ZM_ERR_NONE;
        }
        if (ZMErr error =
                InsertOrAlert(gradients, entry.Get(), kAlertIdGradient, "AddGradient:LinkStrAdd");
            error != ZM_ERR_NONE) {
            return error;
        }
        // Only a new entry: a gradient's spot colours are gathered once per survey. The
        // object's spot mark is not set by them.
        return AddSpotStops(gradient);
    });
}

}  // namespace tolvane
