#include "document/ArtStyle.hpp"

#include "document/Art.hpp"
#include "document/Resources.hpp"

namespace zm::host::document {

namespace {

// The name of the effect a brush on a stroke makes.
constexpr const char* kBrushEffectName = "Brush";

bool SameColor(const Color& a, const Color& b) {
    return a.kind == b.kind && a.gray == b.gray && a.cmyk == b.cmyk && a.rgb == b.rgb &&
           a.custom == b.custom && a.tint == b.tint && a.pattern == b.pattern &&
           a.gradient == b.gradient;
}

bool SamePaint(const PathStyle& a, const PathStyle& b) {
    return a.fillPaint == b.fillPaint && SameColor(a.fill, b.fill) && a.evenOdd == b.evenOdd &&
           a.strokePaint == b.strokePaint && SameColor(a.stroke, b.stroke) &&
           a.strokeWidth == b.strokeWidth && a.clip == b.clip && a.brush == b.brush;
}

bool SameBlend(const BlendStyle& a, const BlendStyle& b) {
    return a.mode == b.mode && a.opacity == b.opacity && a.fillOpacity == b.fillOpacity &&
           a.strokeOpacity == b.strokeOpacity;
}

// Effects follow from the paint, so the same paint and blend is the same appearance.
bool SameAppearance(const ArtStyle& a, const ArtStyle& b) {
    return SamePaint(a.paint, b.paint) && SameBlend(a.blend, b.blend);
}

std::unique_ptr<ArtStyle> Describe(const Art& art) {
    auto style = std::make_unique<ArtStyle>();
    style->graphicStyle = art.graphicStyle;
    style->paint = art.style;
    style->blend = art.blend;
    // A brush only shows where there is a stroke to carry it.
    if (art.style.strokePaint && art.style.brush != nullptr) {
        style->strokeEffects.push_back({kBrushEffectName, art.style.brush});
    }
    return style;
}

}  // namespace

const std::string& ArtStyle::Name() const {
    static const std::string none;
    return graphicStyle == nullptr ? none : graphicStyle->name;
}

const ArtStyle& ArtStyleCache::StyleOf(const Art& art) {
    if (auto found = byArt_.find(&art); found != byArt_.end()) {
        return *found->second;
    }
    std::unique_ptr<ArtStyle> described = Describe(art);
    const ArtStyle* style = nullptr;
    if (!described->Anonymous()) {
        std::vector<const ArtStyle*>& named = byGraphicStyle_[described->graphicStyle];
        for (const ArtStyle* candidate : named) {
            if (SameAppearance(*candidate, *described)) {
                style = candidate;
                break;
            }
        }
        if (style == nullptr) {
            style = &Keep(std::move(described));
            named.push_back(style);
        }
    } else {
        style = &Keep(std::move(described));
    }
    byArt_.emplace(&art, style);
    return *style;
}

const ArtStyle& ArtStyleCache::Keep(std::unique_ptr<ArtStyle> style) {
    owned_.push_back(std::move(style));
    const ArtStyle& kept = *owned_.back();
    styles_.insert(&kept);
    for (const LiveEffect& effect : kept.strokeEffects) {
        effects_.insert(&effect);
    }
    return kept;
}

}  // namespace zm::host::document
