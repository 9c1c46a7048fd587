#include "suites/ArtStyleHandle.hpp"
#include "suites/ColorRecords.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/DictionaryObject.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/ZMArtStyleSuite.h>

#include <limits>
#include <memory>
#include <vector>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_ART_STYLE_PARSER_SUITE_NAME;

// Names of the blend dictionary's entries.
constexpr const char* kModeEntry = "Mode";
constexpr const char* kOpacityEntry = "Opacity";

struct PaintField {
    bool fill = false;  // else a stroke
    ZMFillStyle fillStyle{};
    ZMStrokeStyle strokeStyle{};
    std::vector<const document::LiveEffect*> effects;
};

// What one parse found; a new parse replaces it, fields and all.
struct StyleParser {
    bool parsed = false;
    std::vector<PaintField> fields;
    document::BlendStyle blend;
};

StyleParser& RequireParser(Runtime& runtime, ZMStyleParser parser) {
    return runtime.objects.Require<StyleParser>(parser);
}

// A field of a live parser's last parse.
const PaintField& RequireField(Runtime& runtime, ZMParserPaintField field) {
    if (field != nullptr) {
        for (const StyleParser* parser : runtime.objects.All<StyleParser>()) {
            for (const PaintField& candidate : parser->fields) {
                if (reinterpret_cast<ZMParserPaintField>(const_cast<PaintField*>(&candidate)) ==
                    field) {
                    return candidate;
                }
            }
        }
    }
    throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown paint field");
}

std::vector<PaintField> FieldsOf(const document::ArtStyle& style) {
    std::vector<PaintField> fields;
    if (style.paint.fillPaint) {
        PaintField fill;
        fill.fill = true;
        fill.fillStyle.color = ToColorRecord(style.paint.fill);
        fields.push_back(fill);
    }
    if (style.paint.strokePaint) {
        PaintField stroke;
        stroke.strokeStyle.color = ToColorRecord(style.paint.stroke);
        stroke.strokeStyle.width = style.paint.strokeWidth;
        for (const document::LiveEffect& effect : style.strokeEffects) {
            stroke.effects.push_back(&effect);
        }
        fields.push_back(stroke);
    }
    return fields;
}

ZMErr ZM_API NewParser(ZMStyleParser* parser) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(parser);
        *parser =
            reinterpret_cast<ZMStyleParser>(&runtime.objects.Add(std::make_unique<StyleParser>()));
    });
}

ZMErr ZM_API DisposeParser(ZMStyleParser parser) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        if (parser != nullptr) {
            runtime.objects.Release<StyleParser>(parser);
        }
    });
}

ZMErr ZM_API ParseStyle(ZMStyleParser parser, ZMArtStyleHandle style) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        StyleParser& held = RequireParser(runtime, parser);
        const document::ArtStyle& parsed = RequireArtStyle(RequireCurrentDocument(), style);
        held.fields = FieldsOf(parsed);
        held.blend = parsed.blend;
        held.parsed = true;
    });
}

ZMErr ZM_API CountPaintFields(ZMStyleParser parser, int32_t* count) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const StyleParser& held = RequireParser(runtime, parser);
        RequireArguments(count);
        *count = static_cast<int32_t>(held.fields.size());  // a fill and a stroke at most
    });
}

ZMErr ZM_API GetNthPaintField(ZMStyleParser parser, int32_t index, ZMParserPaintField* field) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        StyleParser& held = RequireParser(runtime, parser);
        RequireArguments(field);
        if (index < 0 || static_cast<std::size_t>(index) >= held.fields.size()) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "paint field index out of range");
        }
        *field =
            reinterpret_cast<ZMParserPaintField>(&held.fields[static_cast<std::size_t>(index)]);
    });
}

ZMErr ZM_API IsFill(ZMParserPaintField field, ZMBool* fill) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime& runtime) {
        const PaintField& held = RequireField(runtime, field);
        RequireArguments(fill);
        *fill = held.fill ? 1 : 0;
    });
}

ZMErr ZM_API IsStroke(ZMParserPaintField field, ZMBool* stroke) {
    return GuardSuiteCall(kSuite, 6, [&](Runtime& runtime) {
        const PaintField& held = RequireField(runtime, field);
        RequireArguments(stroke);
        *stroke = held.fill ? 0 : 1;
    });
}

ZMErr ZM_API GetFill(ZMParserPaintField field, ZMFillStyle* fill) {
    return GuardSuiteCall(kSuite, 7, [&](Runtime& runtime) {
        const PaintField& held = RequireField(runtime, field);
        RequireArguments(fill);
        if (!held.fill) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "a stroke field has no fill");
        }
        *fill = held.fillStyle;
    });
}

ZMErr ZM_API GetStroke(ZMParserPaintField field, ZMStrokeStyle* stroke) {
    return GuardSuiteCall(kSuite, 8, [&](Runtime& runtime) {
        const PaintField& held = RequireField(runtime, field);
        RequireArguments(stroke);
        if (held.fill) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "a fill field has no stroke");
        }
        *stroke = held.strokeStyle;
    });
}

ZMErr ZM_API CountLiveEffects(ZMParserPaintField field, int32_t* count) {
    return GuardSuiteCall(kSuite, 9, [&](Runtime& runtime) {
        const PaintField& held = RequireField(runtime, field);
        RequireArguments(count);
        if (held.effects.size() > static_cast<std::size_t>(std::numeric_limits<int32_t>::max())) {
            throw HostError(ZM_ERR_INTERNAL, "too many effects to count");
        }
        *count = static_cast<int32_t>(held.effects.size());
    });
}

ZMErr ZM_API GetLiveEffect(ZMParserPaintField field, int32_t index, ZMLiveEffectHandle* effect) {
    return GuardSuiteCall(kSuite, 10, [&](Runtime& runtime) {
        const PaintField& held = RequireField(runtime, field);
        RequireArguments(effect);
        if (index < 0) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "negative effect index");
        }
        *effect = static_cast<std::size_t>(index) < held.effects.size()
                      ? reinterpret_cast<ZMLiveEffectHandle>(const_cast<document::LiveEffect*>(
                            held.effects[static_cast<std::size_t>(index)]))
                      : nullptr;
    });
}

ZMErr ZM_API GetBlendDictionary(ZMStyleParser parser, ZMDictionaryRef* dictionary) {
    return GuardSuiteCall(kSuite, 11, [&](Runtime& runtime) {
        const StyleParser& held = RequireParser(runtime, parser);
        RequireArguments(dictionary);
        if (!held.parsed) {
            throw HostError(ZM_ERR_NOT_FOUND, "nothing parsed yet");
        }
        auto blend = std::make_unique<DictionaryObject>();
        blend->entries()[kModeEntry] = static_cast<int32_t>(held.blend.mode);
        blend->entries()[kOpacityEntry] = held.blend.EffectiveOpacity();
        *dictionary = AddDictionary(runtime, std::move(blend));
    });
}

ZMArtStyleParserSuite MakeTable() {
    ZMArtStyleParserSuite table{};
    table.NewParser = NewParser;
    table.DisposeParser = DisposeParser;
    table.ParseStyle = ParseStyle;
    table.CountPaintFields = CountPaintFields;
    table.GetNthPaintField = GetNthPaintField;
    table.IsFill = IsFill;
    table.IsStroke = IsStroke;
    table.GetFill = GetFill;
    table.GetStroke = GetStroke;
    table.CountLiveEffects = CountLiveEffects;
    table.GetLiveEffect = GetLiveEffect;
    table.GetBlendDictionary = GetBlendDictionary;
    return table;
}

const ZMArtStyleParserSuite kTable = MakeTable();

}  // namespace

void RegisterArtStyleParserSuite(SuiteRegistry& registry) {
    registry.Add(ZM_ART_STYLE_PARSER_SUITE_NAME, ZM_ART_STYLE_PARSER_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
