#pragma once

#include "document/Paint.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace zm::host::document {

class Art;
struct Brush;
struct GraphicStyle;

// An effect that changes how a paint looks without changing the art. The model's only
// effects are brushes on strokes.
struct LiveEffect {
    std::string name;
    Brush* brush = nullptr;
};

// What kind of style an art style is, by the art style suite's codes.
enum class ArtStyleKind : int16_t {
    Plain = 1,   // a fill and a stroke and nothing else
    Active = 2,  // effects change the paint, a brush on the stroke for one
};

// The appearance of one art object as the style suites see it: its paint, its blending and
// the effects on its paint. A named graphic style has one such object per distinct
// appearance; every other object has an anonymous one of its own.
struct ArtStyle {
    GraphicStyle* graphicStyle = nullptr;  // null: anonymous
    PathStyle paint;
    BlendStyle blend;
    std::vector<LiveEffect> strokeEffects;  // in the order they apply

    bool Anonymous() const { return graphicStyle == nullptr; }
    // Empty for an anonymous style.
    const std::string& Name() const;
    ArtStyleKind Kind() const {
        return strokeEffects.empty() ? ArtStyleKind::Plain : ArtStyleKind::Active;
    }
};

// The art styles handed out for a document's art, made on first request. They stay put,
// and keep their addresses, until the document goes.
class ArtStyleCache {
public:
    ArtStyleCache() = default;
    ArtStyleCache(const ArtStyleCache&) = delete;
    ArtStyleCache& operator=(const ArtStyleCache&) = delete;

    const ArtStyle& StyleOf(const Art& art);
    bool Holds(const ArtStyle* style) const { return styles_.count(style) != 0; }
    bool Holds(const LiveEffect* effect) const { return effects_.count(effect) != 0; }
    std::size_t Size() const { return owned_.size(); }

private:
    const ArtStyle& Keep(std::unique_ptr<ArtStyle> style);

    std::vector<std::unique_ptr<ArtStyle>> owned_;
    std::unordered_map<const Art*, const ArtStyle*> byArt_;
    std::unordered_map<const GraphicStyle*, std::vector<const ArtStyle*>> byGraphicStyle_;
    std::unordered_set<const ArtStyle*> styles_;
    std::unordered_set<const LiveEffect*> effects_;
};

}  // namespace zm::host::document
