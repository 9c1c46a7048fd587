#include "suites/ColorRecords.hpp"

#include "document/Resources.hpp"

namespace zm::host {

namespace {

using document::ColorKind;

// The model's colour kinds carry the SDK's codes, so the kind passes through unchanged.
static_assert(static_cast<int16_t>(ColorKind::Gray) == ZM_COLOR_GRAY);
static_assert(static_cast<int16_t>(ColorKind::Cmyk) == ZM_COLOR_FOUR);
static_assert(static_cast<int16_t>(ColorKind::Pattern) == ZM_COLOR_PATTERN);
static_assert(static_cast<int16_t>(ColorKind::Custom) == ZM_COLOR_CUSTOM);
static_assert(static_cast<int16_t>(ColorKind::Gradient) == ZM_COLOR_GRADIENT);
static_assert(static_cast<int16_t>(ColorKind::Rgb) == ZM_COLOR_THREE);
static_assert(static_cast<int16_t>(ColorKind::None) == ZM_COLOR_NONE);

}  // namespace

ZMColor ToColorRecord(const document::Color& color) {
    ZMColor record{};
    record.kind = static_cast<int16_t>(color.kind);
    switch (color.kind) {
        case ColorKind::Gray:
            record.c.gray.gray = color.gray;
            break;
        case ColorKind::Cmyk:
            record.c.four = {color.cmyk[0], color.cmyk[1], color.cmyk[2], color.cmyk[3]};
            break;
        case ColorKind::Rgb:
            record.c.three = {color.rgb[0], color.rgb[1], color.rgb[2]};
            break;
        case ColorKind::Custom:
            record.c.custom.color = reinterpret_cast<ZMCustomColorHandle>(color.custom);
            record.c.custom.tint = color.tint;
            break;
        case ColorKind::Pattern:
            record.c.pattern = reinterpret_cast<ZMPatternHandle>(color.pattern);
            break;
        case ColorKind::Gradient:
            record.c.gradient = reinterpret_cast<ZMGradientHandle>(color.gradient);
            break;
        case ColorKind::None:
            break;
    }
    return record;
}

ZMFillStyle ToFillStyleRecord(const document::Color& color) {
    ZMFillStyle record{};
    record.color = ToColorRecord(color);
    return record;
}

bool SameColorRecord(const ZMColor& first, const ZMColor& second) {
    if (first.kind != second.kind) {
        return false;
    }
    const auto& a = first.c;
    const auto& b = second.c;
    switch (first.kind) {
        case ZM_COLOR_GRAY:
            return a.gray.gray == b.gray.gray;
        case ZM_COLOR_FOUR:
            return a.four.cyan == b.four.cyan && a.four.magenta == b.four.magenta &&
                   a.four.yellow == b.four.yellow && a.four.black == b.four.black;
        case ZM_COLOR_THREE:
            return a.three.red == b.three.red && a.three.green == b.three.green &&
                   a.three.blue == b.three.blue;
        case ZM_COLOR_CUSTOM:
            return a.custom.color == b.custom.color && a.custom.tint == b.custom.tint;
        case ZM_COLOR_PATTERN:
            return a.pattern == b.pattern;
        case ZM_COLOR_GRADIENT:
            return a.gradient == b.gradient;
        default:
            return true;  // no colour, or a kind with nothing more to compare
    }
}

ZMPathStyle ToPathStyleRecord(const document::PathStyle& style) {
    ZMPathStyle record{};
    record.fillPaint = style.fillPaint ? 1 : 0;
    record.fill = ToFillStyleRecord(style.fill);
    record.strokePaint = style.strokePaint ? 1 : 0;
    record.stroke.color = ToColorRecord(style.stroke);
    record.stroke.width = style.strokeWidth;
    record.clip = style.clip ? 1 : 0;
    record.evenOdd = style.evenOdd ? 1 : 0;
    return record;
}

}  // namespace zm::host
