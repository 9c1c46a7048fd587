#include "inventory/StyleInventory.hpp"

#include "inventory/ColorInventory.hpp"
#include "inventory/ListEntry.hpp"
#include "inventory/StyleTransparency.hpp"
#include "report/Error.hpp"
#include "report/HostString.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

namespace tolvane {

namespace {

// Owns a style parser and gives it back on every exit path.
class ScopedParser {
public:
    ScopedParser() = default;
    ~ScopedParser() { sArtStyleParserSuite->DisposeParser(parser_); }
    ScopedParser(const ScopedParser&) = delete;
    ScopedParser& operator=(const ScopedParser&) = delete;

    ZMStyleParser* Out() { return &parser_; }
    ZMStyleParser Get() const { return parser_; }

private:
    ZMStyleParser parser_ = nullptr;
};

// A named graphic style counts the object and lists the name, or raises its count. A list
// that cannot take the name is shown, and the survey goes on.
void CountNamedStyle(ZMUnicodeString name) {
    ++CollectingSurvey().record.styledObjectCount;
    InsertOrAlert(CollectingSurvey().lists.graphicStyleList, name, kAlertIdStyle, "CheckStyle:LinkStrAdd");
}

// A plain style: its fill and stroke, then its blending read from the blend style suite.
ZMErr CheckPlainStyle(ZMArtStyleHandle style, int16_t artType, PaintKind& marks,
                      int32_t skipSolid) {
    ZMPathStyle paint{};
    if (ZMErr error = sArtStyleSuite->GetPathStyle(style, &paint); error != ZM_ERR_NONE) {
        return error;
    }
    if (paint.fillPaint != 0) {
        if (ZMErr error = AddCustomColor(paint.fill.color, marks, skipSolid);
            error != ZM_ERR_NONE) {
            return error;
        }
    }
    if (paint.strokePaint != 0) {
        if (ZMErr error = AddCustomColor(paint.stroke.color, marks, skipSolid);
            error != ZM_ERR_NONE) {
            return error;
        }
    }
    AddMarksToCounters(marks);
    return CheckStyleTransparency(style, artType);
}

// The colour of one parsed fill or stroke.
ZMErr AddFieldColor(ZMParserPaintField field, PaintKind& marks, int32_t skipSolid) {
    ZMBool fill = 0;
    if (ZMErr error = sArtStyleParserSuite->IsFill(field, &fill); error != ZM_ERR_NONE) {
        return error;
    }
    if (fill != 0) {
        ZMFillStyle style{};
        if (ZMErr error = sArtStyleParserSuite->GetFill(field, &style); error != ZM_ERR_NONE) {
            return error;
        }
        return AddCustomColor(style.color, marks, skipSolid);
    }
    ZMBool stroke = 0;
    if (ZMErr error = sArtStyleParserSuite->IsStroke(field, &stroke); error != ZM_ERR_NONE) {
        return error;
    }
    if (stroke == 0) {
        return ZM_ERR_NONE;
    }
    ZMStrokeStyle style{};
    if (ZMErr error = sArtStyleParserSuite->GetStroke(field, &style); error != ZM_ERR_NONE) {
        return error;
    }
    return AddCustomColor(style.color, marks, skipSolid);
}

// A style with effects: brushes on its strokes, the colours of its fills and strokes, then
// its blending.
ZMErr CheckParsedStyle(ZMArtStyleHandle style, int16_t artType, PaintKind& marks,
                       int32_t skipSolid) {
    ScopedParser parser;
    if (ZMErr error = sArtStyleParserSuite->NewParser(parser.Out()); error != ZM_ERR_NONE) {
        return error;
    }
    if (ZMErr error = sArtStyleParserSuite->ParseStyle(parser.Get(), style); error != ZM_ERR_NONE) {
        return error;
    }
    int32_t fieldCount = 0;
    if (ZMErr error = sArtStyleParserSuite->CountPaintFields(parser.Get(), &fieldCount);
        error != ZM_ERR_NONE) {
        return error;
    }
    if (fieldCount > 0) {
        if (ZMErr error = CheckForBrush(parser.Get()); error != ZM_ERR_NONE) {
            return error;
        }
        for (int32_t i = 0; i < fieldCount; ++i) {
            ZMParserPaintField field = nullptr;
            if (ZMErr error = sArtStyleParserSuite->GetNthPaintField(parser.Get(), i, &field);
                error != ZM_ERR_NONE) {
                return error;
            }
            if (ZMErr error = AddFieldColor(field, marks, skipSolid); error != ZM_ERR_NONE) {
                return error;
            }
        }
    }
    AddMarksToCounters(marks);
    return CheckParsedTransparency(parser.Get(), artType);
}

}  // namespace

ZMErr CheckStyle(ZMArtHandle art, int16_t artType, PaintKind& marks, int32_t skipSolid) {
    return zm::CodeOrNoMemory([&]() -> ZMErr {
        ZMArtStyleHandle style = nullptr;
        if (ZMErr error = sArtStyleSuite->GetArtStyle(art, &style); error != ZM_ERR_NONE) {
            return error;
        }
        if (style == nullptr) {
            return ZM_ERR_NONE;
        }
        HostString name = HostString::Empty();
        ZMBool anonymous = 1;
        if (ZMErr error = sArtStyleSuite->GetArtStyleName(style, name.Get(), &anonymous);
            error != ZM_ERR_NONE) {
            return error;
        }
        // Every ordinary object has an anonymous style of its own; those are not counted.
        if (anonymous == 0) {
            CountNamedStyle(name.Get());
        }
        int16_t kind = 0;
        if (ZMErr error = sArtStyleSuite->GetArtStyleKind(style, &kind); error != ZM_ERR_NONE) {
            return error;
        }
        if (kind == ZM_ART_STYLE_PLAIN) {
            // A plain style carries no effects, so no brush either.
            return CheckPlainStyle(style, artType, marks, skipSolid);
        }
        return CheckParsedStyle(style, artType, marks, skipSolid);
    });
}

}  // namespace tolvane
