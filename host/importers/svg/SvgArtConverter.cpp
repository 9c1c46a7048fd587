#include "importers/svg/SvgArtConverter.hpp"

#include "document/ArtBounds.hpp"
#include "importers/svg/SvgAttributes.hpp"
#include "importers/svg/SvgConditions.hpp"
#include "importers/svg/SvgForeignObjectConverter.hpp"
#include "importers/svg/SvgImageConverter.hpp"
#include "importers/svg/SvgImportFailure.hpp"
#include "importers/svg/SvgLength.hpp"
#include "importers/svg/SvgNumbers.hpp"
#include "importers/svg/SvgPatternPlacement.hpp"
#include "importers/svg/SvgShapes.hpp"
#include "importers/svg/SvgTextConverter.hpp"
#include "importers/svg/SvgViewport.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace zm::host::svg {

using document::Art;
using document::ArtType;

namespace {

constexpr std::array<std::string_view, 7> kShapeNames{"path", "rect",     "circle", "ellipse",
                                                      "line", "polyline", "polygon"};

bool IsShapeName(std::string_view name) {
    return std::find(kShapeNames.begin(), kShapeNames.end(), name) != kShapeNames.end();
}

// Marks every path of converted clip content as a clipping path.
void MarkClipping(Art& art) {
    art.style.clip = true;
    for (const auto& child : art.Children()) {
        MarkClipping(*child);
    }
}

bool IsAncestorOrSelf(pugi::xml_node candidate, pugi::xml_node element) {
    for (pugi::xml_node node = element; node; node = node.parent()) {
        if (node == candidate) {
            return true;
        }
    }
    return false;
}

// Restores the active set when an expansion ends, exceptions included.
class ActiveReference {
public:
    ActiveReference(std::unordered_set<std::string>& active, std::string id)
        : active_(active), id_(std::move(id)) {
        active_.insert(id_);
    }
    ~ActiveReference() { active_.erase(id_); }
    ActiveReference(const ActiveReference&) = delete;
    ActiveReference& operator=(const ActiveReference&) = delete;

private:
    std::unordered_set<std::string>& active_;
    std::string id_;
};

// Corner values of a live shape: one value for all corners, or one per corner.
template <typename Parse>
void ApplyCornerList(std::vector<document::Corner>& corners, std::string_view text, Parse&& parse) {
    auto words = SplitWords(text);
    if (words.empty()) {
        return;
    }
    for (std::size_t i = 0; i < corners.size(); ++i) {
        std::string_view word = words.size() == 1 ? words[0] : i < words.size() ? words[i] : "";
        if (!word.empty()) {
            parse(corners[i], word);
        }
    }
}

bool IsObjectBoundingBox(std::string_view units) {
    return TrimSvgSpace(units) == "objectBoundingBox";
}

// The art's bounding box for content in objectBoundingBox units; art without geometry gives
// an empty box, which shrinks such content to a point.
UserBox BoxOf(const Art& art, const Affine& toModel) {
    return UserBoundingBox(art, toModel).value_or(UserBox{});
}

}  // namespace

std::unique_ptr<Art> SvgArtConverter::NewArt(ArtType type, pugi::xml_node element) {
    if (++artCount_ > kMaxArtCount) {
        throw SvgImportFailure("the document makes too many objects");
    }
    return std::make_unique<Art>(type, element.attribute("id").value());
}

std::unique_ptr<Art> SvgArtConverter::Convert(pugi::xml_node element, const Affine& parentToModel,
                                              int depth) {
    if (depth > kMaxNesting) {
        throw SvgImportFailure("elements nested too deeply");
    }
    if (element.type() != pugi::node_element) {
        return nullptr;
    }
    std::string_view name = context_.names.SvgName(element);
    Affine toModel = parentToModel;
    if (auto transform = ParseTransform(element.attribute("transform").value())) {
        toModel = parentToModel * *transform;
    }
    std::unique_ptr<Art> art;
    if (BooleanValue(context_.names.Value(element, Vocabulary::Zelmora, "graph"), false)) {
        art = NewArt(ArtType::Unknown, element);
        art->graph = true;
    } else if (IsShapeName(name)) {
        art = ConvertShape(element, name, toModel);
    } else if (name == "g" || name == "a" || name == "switch" || name == "svg") {
        art = ConvertGroup(element, toModel, depth);
    } else if (name == "text") {
        art = ConvertText(*this, element, toModel, depth);
    } else if (name == "image") {
        art = ConvertImage(*this, element, toModel);
    } else if (name == "use") {
        art = ConvertUse(element, toModel, depth);
    } else if (name == "foreignObject") {
        art = ConvertForeignObject(*this, element, toModel);
    }
    if (!art) {
        return nullptr;
    }
    ApplyCommon(*art, element, toModel, depth);
    PlacePatterns(*art, toModel, depth);
    return ApplyClip(std::move(art), element, toModel, depth);
}

void SvgArtConverter::ConvertChildren(pugi::xml_node element, const Affine& toModel, Art& into,
                                      int depth) {
    for (pugi::xml_node child : element.children()) {
        if (auto art = Convert(child, toModel, depth + 1)) {
            into.Add(std::move(art));
        }
    }
}

std::unique_ptr<Art> SvgArtConverter::ConvertGroup(pugi::xml_node element, const Affine& toModel,
                                                   int depth) {
    Affine inside = toModel;
    if (context_.names.SvgName(element) == "svg") {
        // A nested viewport: its position, then its own viewBox.
        double width =
            LengthAttribute(element, "width", context_.viewportWidth, context_.viewportWidth);
        double height =
            LengthAttribute(element, "height", context_.viewportHeight, context_.viewportHeight);
        inside =
            inside * Affine::Translate(LengthAttribute(element, "x", 0, context_.viewportWidth),
                                       LengthAttribute(element, "y", 0, context_.viewportHeight));
        if (auto box = ParseViewBox(element.attribute("viewBox").value())) {
            inside =
                inside * ViewBoxTransform(*box, element.attribute("preserveAspectRatio").value(),
                                          width, height);
        }
    }
    std::string_view plugin = context_.names.Value(element, Vocabulary::Zelmora, "plugin");
    if (!plugin.empty()) {
        auto group = NewArt(ArtType::PluginGroup, element);
        group->pluginName = std::string(plugin);
        ConvertChildren(element, inside, group->ResultGroup(), depth);
        return group;
    }
    if (context_.names.Attribute(element, Vocabulary::Zelmora, "chart")) {
        return NewArt(ArtType::Chart, element);  // a chart's drawing is its own business
    }
    auto group = NewArt(ArtType::Group, element);
    if (context_.names.SvgName(element) == "switch") {
        // A switch draws one of its children, the first whose conditions hold.
        if (auto chosen = Convert(ChosenSwitchChild(context_.names, element), inside, depth + 1)) {
            group->Add(std::move(chosen));
        }
        return group;
    }
    ConvertChildren(element, inside, *group, depth);
    return group;
}

std::vector<Subpath> SvgArtConverter::Outline(pugi::xml_node element) const {
    std::string_view name = context_.names.SvgName(element);
    double width = context_.viewportWidth, height = context_.viewportHeight;
    double diagonal = std::hypot(width, height) / std::sqrt(2.0);
    double fontSize = context_.styles.For(element).fontSize;
    auto length = [&](const char* attribute, double base) {
        return LengthAttribute(element, attribute, 0, base, fontSize);
    };
    if (name == "path") {
        return ParsePathData(element.attribute("d").value());
    }
    if (name == "rect") {
        // rx alone sets ry and the other way round; negative radii are errors, ignored.
        auto radius = [&](const char* attribute, double base) {
            double value = LengthAttribute(element, attribute, -1, base, fontSize);
            return value < 0 ? -1 : value;
        };
        double rx = radius("rx", width), ry = radius("ry", height);
        if (rx < 0) rx = ry;
        if (ry < 0) ry = rx;
        return {RectOutline(length("x", width), length("y", height), length("width", width),
                            length("height", height), std::max(rx, 0.0), std::max(ry, 0.0))};
    }
    if (name == "circle") {
        double r = length("r", diagonal);
        return {EllipseOutline(length("cx", width), length("cy", height), r, r)};
    }
    if (name == "ellipse") {
        return {EllipseOutline(length("cx", width), length("cy", height), length("rx", width),
                               length("ry", height))};
    }
    if (name == "line") {
        return {LineOutline(length("x1", width), length("y1", height), length("x2", width),
                            length("y2", height))};
    }
    if (name == "polyline" || name == "polygon") {
        return PolyOutline(ParseNumberList(element.attribute("points").value()), name == "polygon");
    }
    return {};
}

document::Rect SvgArtConverter::BoxBounds(pugi::xml_node element, const Affine& toModel) const {
    double x = LengthAttribute(element, "x", 0, context_.viewportWidth);
    double y = LengthAttribute(element, "y", 0, context_.viewportHeight);
    double width = std::max(0.0, LengthAttribute(element, "width", 0, context_.viewportWidth));
    double height = std::max(0.0, LengthAttribute(element, "height", 0, context_.viewportHeight));
    return TransformedBounds(toModel, x, y, x + width, y + height);
}

document::PathStyle SvgArtConverter::PaintStyle(pugi::xml_node element, const Affine& toModel) {
    const ComputedStyle& style = context_.styles.For(element);
    document::PathStyle paint;
    ResolvedPaint fill = context_.resources.Resolve(style.fill, style.color);
    ResolvedPaint stroke = context_.resources.Resolve(style.stroke, style.color);
    paint.fillPaint = fill.painted;
    if (fill.painted) paint.fill = fill.color;
    paint.strokePaint = stroke.painted;
    if (stroke.painted) paint.stroke = stroke.color;
    paint.evenOdd = style.evenOdd;
    paint.strokeWidth = ClampCoordinate(style.strokeWidth * toModel.LengthScale());
    std::string_view brush = context_.names.Value(element, Vocabulary::Zelmora, "brush");
    if (brush.starts_with('#')) {
        paint.brush = context_.resources.Brush(std::string(brush.substr(1)));
    }
    return paint;
}

std::unique_ptr<Art> SvgArtConverter::ConvertShape(pugi::xml_node element, std::string_view name,
                                                   const Affine& toModel) {
    std::vector<Subpath> subpaths = Outline(element);
    const ComputedStyle& style = context_.styles.For(element);
    document::PathStyle paint = PaintStyle(element, toModel);
    ResolvedPaint fill = context_.resources.Resolve(style.fill, style.color);
    std::unique_ptr<Art> art;
    if (fill.mesh) {
        // A mesh gradient fill makes the shape a mesh; its colours are the mesh's.
        art = NewArt(ArtType::Mesh, element);
        art->meshColors = *fill.mesh;
        if (!subpaths.empty()) art->path = ToPathGeometry(subpaths.front(), toModel);
    } else if (subpaths.size() >= 2) {
        art = NewArt(ArtType::CompoundPath, element);
        for (const auto& subpath : subpaths) {
            auto member = NewArt(ArtType::Path, pugi::xml_node());
            member->path = ToPathGeometry(subpath, toModel);
            member->style = paint;
            art->Add(std::move(member));
        }
    } else {
        art = NewArt(ArtType::Path, element);
        if (!subpaths.empty()) art->path = ToPathGeometry(subpaths.front(), toModel);
    }
    art->style = paint;
    ApplyLiveShape(*art, element, name, toModel);
    return art;
}

void SvgArtConverter::ApplyLiveShape(Art& art, pugi::xml_node element, std::string_view name,
                                     const Affine& toModel) {
    std::size_t cornerCount = 0;
    document::LiveShape shape;
    double radius = 0;
    if (name == "rect") {
        shape.kind = document::LiveShapeKind::Rectangle;
        cornerCount = 4;
        double rx = LengthAttribute(element, "rx", -1, context_.viewportWidth);
        double ry = LengthAttribute(element, "ry", -1, context_.viewportHeight);
        radius = rx >= 0 ? rx : std::max(ry, 0.0);
    } else if (name == "circle" || name == "ellipse") {
        shape.kind = document::LiveShapeKind::Ellipse;
    } else if (context_.names.Value(element, Vocabulary::Zelmora, "shape") == "polygon") {
        shape.kind = document::LiveShapeKind::Polygon;
        cornerCount = art.Type() == ArtType::CompoundPath && !art.Children().empty()
                          ? art.Children().front()->path.segments.size()
                          : art.path.segments.size();
    } else {
        return;
    }
    // Radii are user units like rx, kept in points.
    double scale = toModel.LengthScale();
    shape.corners.assign(cornerCount, document::Corner{0, 0, ClampCoordinate(radius * scale)});
    ApplyCornerList(shape.corners,
                    context_.names.Value(element, Vocabulary::Zelmora, "corner-radii"),
                    [&](document::Corner& corner, std::string_view word) {
                        if (auto value = ParseNumber(word); value && *value >= 0) {
                            corner.radius = ClampCoordinate(*value * scale);
                        }
                    });
    ApplyCornerList(shape.corners,
                    context_.names.Value(element, Vocabulary::Zelmora, "corner-types"),
                    [](document::Corner& corner, std::string_view word) {
                        if (word == "round") corner.type = 0;
                        if (word == "inverted-round") corner.type = 1;
                        if (word == "chamfer") corner.type = 2;
                    });
    ApplyCornerList(shape.corners,
                    context_.names.Value(element, Vocabulary::Zelmora, "rounding-types"),
                    [](document::Corner& corner, std::string_view word) {
                        if (word == "absolute") corner.roundingType = 0;
                        if (word == "relative") corner.roundingType = 1;
                    });
    art.liveShape = std::move(shape);
}

std::unique_ptr<Art> SvgArtConverter::FramePath(pugi::xml_node shape, const Affine& parentToModel) {
    if (!IsShapeName(context_.names.SvgName(shape))) {
        return nullptr;
    }
    Affine toModel = parentToModel;
    if (auto transform = ParseTransform(shape.attribute("transform").value())) {
        toModel = parentToModel * *transform;
    }
    auto path = NewArt(ArtType::Path, shape);
    std::vector<Subpath> subpaths = Outline(shape);
    if (!subpaths.empty()) {
        path->path = ToPathGeometry(subpaths.front(), toModel);
    }
    path->style = PaintStyle(shape, toModel);
    path->name = path->Id();
    return path;
}

std::unique_ptr<Art> SvgArtConverter::ConvertUse(pugi::xml_node element, const Affine& toModel,
                                                 int depth) {
    std::string id = context_.names.HrefId(element);
    pugi::xml_node target = context_.Lookup(id);
    // A missing target, one that holds the <use> itself or one being expanded draws nothing.
    if (!target || IsActive(id) || IsAncestorOrSelf(target, element)) {
        return nullptr;
    }
    document::Symbol* symbol = SymbolFor(target, depth);
    if (!symbol) {
        return nullptr;
    }
    auto instance = NewArt(ArtType::SymbolInstance, element);
    instance->symbol = symbol;
    // The definition was made in the root's user space; the instance shows it where the <use>
    // puts it, so its bounds are the definition's carried from there to here.
    if (auto rootFromModel = context_.rootToModel.Inverse()) {
        Affine definitionToInstance = UsePlacement(element, target, toModel) * *rootFromModel;
        instance->bounds = document::ArtBoundsAfter(
            *symbol->definition,
            [&](const document::Point& p) { return definitionToInstance.Apply(p); });
    }
    return instance;
}

Affine SvgArtConverter::UsePlacement(pugi::xml_node use, pugi::xml_node target,
                                     const Affine& toModel) const {
    double viewportWidth = context_.viewportWidth, viewportHeight = context_.viewportHeight;
    Affine placed = toModel * Affine::Translate(LengthAttribute(use, "x", 0, viewportWidth),
                                                LengthAttribute(use, "y", 0, viewportHeight));
    if (context_.names.SvgName(target) != "symbol") {
        return placed;
    }
    auto box = ParseViewBox(target.attribute("viewBox").value());
    if (!box) {
        return placed;
    }
    // The <use>'s size wins over the symbol's own; neither given means the whole viewport.
    double width = LengthAttribute(
        use, "width", LengthAttribute(target, "width", viewportWidth, viewportWidth), viewportWidth);
    double height =
        LengthAttribute(use, "height",
                        LengthAttribute(target, "height", viewportHeight, viewportHeight),
                        viewportHeight);
    return placed * ViewBoxTransform(*box, target.attribute("preserveAspectRatio").value(),
                                     std::max(width, 0.0), std::max(height, 0.0));
}

document::Symbol* SvgArtConverter::SymbolFor(pugi::xml_node target, int depth) {
    std::string id = target.attribute("id").value();
    if (auto found = symbols_.find(id); found != symbols_.end()) {
        return found->second;
    }
    ActiveReference guard(active_, id);
    std::unique_ptr<Art> definition;
    if (context_.names.SvgName(target) == "symbol") {
        definition = NewArt(ArtType::Group, target);
        ConvertChildren(target, context_.rootToModel, *definition, depth + 1);
    } else {
        definition = Convert(target, context_.rootToModel, depth + 1);
    }
    if (!definition) {
        return nullptr;
    }
    auto symbol = std::make_unique<document::Symbol>();
    symbol->id = id;
    symbol->name = context_.ResourceName(target);
    symbol->definition = std::move(definition);
    document::Symbol* made = symbol.get();
    context_.document.symbols.push_back(std::move(symbol));
    symbols_.emplace(id, made);
    return made;
}

void SvgArtConverter::ApplyCommon(Art& art, pugi::xml_node element, const Affine& toModel,
                                  int depth) {
    std::string_view label = context_.names.Value(element, Vocabulary::Inkscape, "label");
    art.name = label.empty() ? art.Id() : std::string(label);

    const ComputedStyle& style = context_.styles.For(element);
    art.blend.mode = style.blendMode;
    art.blend.opacity = style.opacity;
    // Fill and stroke opacities belong to what is painted; a group's style has neither.
    if (art.Type() != ArtType::Group && art.Type() != ArtType::PluginGroup) {
        ResolvedPaint fill = context_.resources.Resolve(style.fill, style.color);
        ResolvedPaint stroke = context_.resources.Resolve(style.stroke, style.color);
        art.blend.fillOpacity = style.fillOpacity * fill.alpha;
        art.blend.strokeOpacity = style.strokeOpacity * stroke.alpha;
    }

    std::string_view named = context_.names.Value(element, Vocabulary::Zelmora, "graphic-style");
    if (!named.empty()) {
        art.graphicStyle =
            context_.resources.GraphicStyleNamed(context_.document, std::string(named));
    } else {
        for (std::string_view word : SplitWords(element.attribute("class").value())) {
            if (context_.sheet.DefinesClass(word)) {
                art.graphicStyle =
                    context_.resources.GraphicStyleNamed(context_.document, std::string(word));
                break;
            }
        }
    }

    pugi::xml_node mask = context_.Lookup(style.mask);
    if (!style.mask.empty() && context_.names.SvgName(mask) == "mask" && !IsActive(style.mask)) {
        ActiveReference guard(active_, style.mask);
        auto group = NewArt(ArtType::Group, pugi::xml_node());
        Affine contentToModel = toModel;
        if (IsObjectBoundingBox(mask.attribute("maskContentUnits").value())) {
            contentToModel = toModel * BoundingBoxUnits(BoxOf(art, toModel));
        }
        ConvertChildren(mask, contentToModel, *group, depth + 1);
        art.opacityMask = std::move(group);
    }
}

std::unique_ptr<Art> SvgArtConverter::ApplyClip(std::unique_ptr<Art> art, pugi::xml_node element,
                                                const Affine& toModel, int depth) {
    const std::string& id = context_.styles.For(element).clipPath;
    pugi::xml_node clipPath = context_.Lookup(id);
    if (id.empty() || context_.names.SvgName(clipPath) != "clipPath" || IsActive(id)) {
        return art;
    }
    ActiveReference guard(active_, id);
    Affine clipToModel = toModel;
    if (auto transform = ParseTransform(clipPath.attribute("transform").value())) {
        clipToModel = toModel * *transform;
    }
    if (IsObjectBoundingBox(clipPath.attribute("clipPathUnits").value())) {
        clipToModel = clipToModel * BoundingBoxUnits(BoxOf(*art, toModel));
    }
    auto group = NewArt(ArtType::Group, pugi::xml_node());
    group->clipGroup = true;
    for (pugi::xml_node child : clipPath.children()) {
        if (auto clip = Convert(child, clipToModel, depth + 1)) {
            MarkClipping(*clip);
            group->Add(std::move(clip));
        }
    }
    group->Add(std::move(art));
    return group;
}

void SvgArtConverter::PlacePatterns(const Art& art, const Affine& toModel, int depth) {
    auto place = [&](const document::PathStyle& paint) {
        for (const document::Color* color : {&paint.fill, &paint.stroke}) {
            if (color->kind == document::ColorKind::Pattern && color->pattern &&
                !placedPatterns_.count(color->pattern)) {
                ConvertPattern(*color->pattern, toModel, BoxOf(art, toModel), depth);
            }
        }
    };
    place(art.style);
    if (art.text) {
        for (const auto& run : art.text->runs) {
            place(run.paint);
        }
    }
}

void SvgArtConverter::ConvertPattern(document::Pattern& pattern, const Affine& userToModel,
                                     const UserBox& box, int depth) {
    if (!placedPatterns_.insert(&pattern).second) {
        return;  // made for the first art that paints with it, or being made now
    }
    const auto& sources = context_.resources.PatternSources();
    auto source = std::find_if(sources.begin(), sources.end(),
                               [&](const auto& entry) { return entry.pattern == &pattern; });
    if (source == sources.end()) {
        return;
    }
    auto group = NewArt(ArtType::Group, source->content);
    if (source->content) {
        Affine toModel = userToModel * PatternContentTransform(context_, source->element, box);
        ActiveReference guard(active_, pattern.id);
        ConvertChildren(source->content, toModel, *group, depth + 1);
    }
    pattern.art = std::move(group);
}

void SvgArtConverter::ConvertUnusedPatterns() {
    for (const auto& source : context_.resources.PatternSources()) {
        ConvertPattern(*source.pattern, context_.rootToModel, UserBox{0, 0, 1, 1}, 1);
    }
}

}  // namespace zm::host::svg
