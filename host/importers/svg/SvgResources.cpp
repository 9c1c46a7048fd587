#include "importers/svg/SvgResources.hpp"

#include "importers/svg/SvgImportContext.hpp"
#include "importers/svg/SvgNumbers.hpp"
#include "importers/svg/SvgTreeWalk.hpp"

#include <algorithm>
#include <memory>
#include <unordered_set>

namespace zm::host::svg {

namespace {

using document::Color;
using document::ColorKind;
using document::CustomColorKind;

template <typename Map>
auto FindIn(const Map& map, const std::string& id) -> typename Map::mapped_type {
    auto found = map.find(id);
    return found == map.end() ? nullptr : found->second;
}

bool IsGradientElement(const ImportContext& context, pugi::xml_node element) {
    auto name = context.names.SvgName(element);
    return name == "linearGradient" || name == "radialGradient";
}

bool IsSolidSwatch(const ImportContext& context, pugi::xml_node element) {
    return context.names.Value(element, Vocabulary::Inkscape, "swatch") == "solid" ||
           context.names.Value(element, Vocabulary::OpenSwatchBook, "paint") == "solid";
}

bool HasChildNamed(const ImportContext& context, pugi::xml_node element, std::string_view name) {
    for (pugi::xml_node child : element.children()) {
        if (context.names.SvgName(child) == name) {
            return true;
        }
    }
    return false;
}

// The first element of the href chain (the element itself first) that `accepts`; the
// chain stops at a missing target, a target that is not `sameKind`, or a cycle.
template <typename SameKind, typename Accepts>
pugi::xml_node FollowHref(const ImportContext& context, pugi::xml_node element, SameKind&& sameKind,
                          Accepts&& accepts) {
    std::unordered_set<const void*> seen;
    while (element && sameKind(element) && seen.insert(element.internal_object()).second) {
        if (accepts(element)) {
            return element;
        }
        element = context.Lookup(context.names.HrefId(element));
    }
    return {};
}

pugi::xml_node StopSource(const ImportContext& context, pugi::xml_node gradient) {
    return FollowHref(
        context, gradient, [&](pugi::xml_node e) { return IsGradientElement(context, e); },
        [&](pugi::xml_node e) { return HasChildNamed(context, e, "stop"); });
}

// Process colours keep both models filled, so a swatch answers in either.
void FillOtherModel(document::CustomColor& swatch) {
    if (swatch.kind == CustomColorKind::Cmyk) {
        const auto& [c, m, y, k] = swatch.cmyk;
        swatch.rgb = {(1 - c) * (1 - k), (1 - m) * (1 - k), (1 - y) * (1 - k)};
    } else if (swatch.kind == CustomColorKind::Rgb) {
        const auto& [r, g, b] = swatch.rgb;
        double k = 1 - std::max({r, g, b});
        double rest = 1 - k;
        swatch.cmyk = rest > 0 ? std::array<double, 4>{(rest - r) / rest, (rest - g) / rest,
                                                       (rest - b) / rest, k}
                               : std::array<double, 4>{0, 0, 0, 1};
    }
}

// A swatch's colour from a parsed colour of any kind.
void SetSwatchColor(document::CustomColor& swatch, const Color& color) {
    switch (color.kind) {
        case ColorKind::Cmyk:
            swatch.kind = CustomColorKind::Cmyk;
            swatch.cmyk = color.cmyk;
            break;
        case ColorKind::Gray:
            swatch.kind = CustomColorKind::Cmyk;
            swatch.cmyk = {0, 0, 0, color.gray};
            break;
        default:
            swatch.kind = CustomColorKind::Rgb;
            swatch.rgb = color.rgb;
            break;
    }
    FillOtherModel(swatch);
}

double ParseOffset(std::string_view text) {
    text = TrimSvgSpace(text);
    bool percent = text.ends_with('%');
    if (percent) {
        text.remove_suffix(1);
    }
    double value = ParseNumber(text).value_or(0);
    return std::clamp(percent ? value / 100 : value, 0.0, 1.0);
}

}  // namespace

void SvgResources::Collect(ImportContext& context) {
    // Swatches first: gradient stops may name them wherever they stand.
    ForEachElement(context.root, [&](pugi::xml_node element, std::size_t) {
        if (context.names.Is(element, Vocabulary::Zelmora, "swatch")) {
            AddSwatch(context, element);
        } else if (context.names.Is(element, Vocabulary::Zelmora, "brush")) {
            AddBrush(context, element);
        } else if (IsGradientElement(context, element) && IsSolidSwatch(context, element)) {
            AddSwatch(context, element);
        }
    });
    ForEachElement(context.root, [&](pugi::xml_node element, std::size_t) {
        auto name = context.names.SvgName(element);
        if (IsGradientElement(context, element) && !IsSolidSwatch(context, element)) {
            AddGradient(context, element);
        } else if (name == "meshgradient") {
            AddMesh(context, element);
        } else if (name == "pattern") {
            AddPattern(context, element);
        }
    });
}

void SvgResources::AddSwatch(ImportContext& context, pugi::xml_node element) {
    auto swatch = std::make_unique<document::CustomColor>();
    swatch->id = element.attribute("id").value();
    if (IsGradientElement(context, element)) {
        // A solid swatch is a one-stop gradient; its stop is its colour. Inkscape swatches
        // are process colours.
        swatch->name = context.ResourceName(element);
        pugi::xml_node source = StopSource(context, element);
        pugi::xml_node stop;
        for (pugi::xml_node child : source.children()) {
            if (context.names.SvgName(child) == "stop") {
                stop = child;
                break;
            }
        }
        double opacity = 1;
        SetSwatchColor(*swatch, stop ? StopColor(context, stop, opacity) : Color::Black());
    } else {
        std::string_view name = element.attribute("name").value();
        swatch->name = name.empty() ? context.ResourceName(element) : std::string(name);
        std::string_view colorText = element.attribute("color").value();
        if (auto lab = ParseLab(colorText)) {
            swatch->kind = CustomColorKind::Lab;
            swatch->lab = *lab;
        } else if (auto parsed = ParseColor(colorText)) {
            SetSwatchColor(*swatch, parsed->color);
        }
        std::string_view model = TrimSvgSpace(element.attribute("model").value());
        if (model == "cmyk" && swatch->kind == CustomColorKind::Rgb) {
            swatch->kind = CustomColorKind::Cmyk;
        } else if (model == "rgb" && swatch->kind == CustomColorKind::Cmyk) {
            swatch->kind = CustomColorKind::Rgb;
        } else if (model == "lab") {
            swatch->kind = CustomColorKind::Lab;
        }
        swatch->spot = TrimSvgSpace(element.attribute("spot").value()) == "true";
    }
    if (!swatch->id.empty()) {
        swatches_.emplace(swatch->id, swatch.get());
    }
    context.document.swatches.push_back(std::move(swatch));
}

void SvgResources::AddBrush(ImportContext& context, pugi::xml_node element) {
    auto brush = std::make_unique<document::Brush>();
    brush->id = element.attribute("id").value();
    std::string_view name = element.attribute("name").value();
    brush->name = name.empty() ? context.ResourceName(element) : std::string(name);
    brush->typeTitle = element.attribute("type").value();
    if (!brush->id.empty()) {
        brushes_.emplace(brush->id, brush.get());
    }
    context.document.brushes.push_back(std::move(brush));
}

Color SvgResources::StopColor(ImportContext& context, pugi::xml_node stop, double& opacity) {
    const ComputedStyle& style = context.styles.For(stop);
    opacity = style.stopOpacity;
    if (auto declared = style.declared.find("stop-color"); declared != style.declared.end()) {
        if (auto id = ParseLocalUrl(declared->second)) {
            if (document::CustomColor* swatch = Swatch(*id)) {
                Color color;
                color.kind = ColorKind::Custom;
                color.custom = swatch;
                color.tint = 0;
                return color;
            }
        }
    }
    opacity *= style.stopColor.alpha;
    return style.stopColor.color;
}

void SvgResources::AddGradient(ImportContext& context, pugi::xml_node element) {
    std::string id = element.attribute("id").value();
    pugi::xml_node source = StopSource(context, element);
    // A gradient that only points at a solid swatch paints with that swatch.
    if (source && source != element && IsSolidSwatch(context, source)) {
        if (auto* swatch = Swatch(source.attribute("id").value()); swatch && !id.empty()) {
            swatches_.emplace(id, swatch);
        }
        return;
    }
    auto gradient = std::make_unique<document::Gradient>();
    gradient->id = id;
    gradient->name = context.ResourceName(element);
    gradient->type = context.names.SvgName(element) == "radialGradient"
                         ? document::GradientType::Radial
                         : document::GradientType::Linear;
    double previous = 0;
    for (pugi::xml_node stop : source.children()) {
        if (context.names.SvgName(stop) != "stop") {
            continue;
        }
        document::GradientStop entry;
        // Offsets never go backwards along the gradient.
        entry.offset = std::max(previous, ParseOffset(stop.attribute("offset").value()));
        previous = entry.offset;
        entry.color = StopColor(context, stop, entry.opacity);
        gradient->stops.push_back(entry);
    }
    if (!id.empty()) {
        gradients_.emplace(id, gradient.get());
    }
    context.document.gradients.push_back(std::move(gradient));
}

void SvgResources::AddMesh(ImportContext& context, pugi::xml_node element) {
    std::string id = element.attribute("id").value();
    if (id.empty()) {
        return;
    }
    std::vector<Color> colors;
    ForEachElement(element, [&](pugi::xml_node node, std::size_t) {
        if (context.names.SvgName(node) == "stop") {
            double opacity = 1;
            colors.push_back(StopColor(context, node, opacity));
        }
    });
    meshes_.emplace(id, std::move(colors));
}

void SvgResources::AddPattern(ImportContext& context, pugi::xml_node element) {
    auto pattern = std::make_unique<document::Pattern>();
    pattern->id = element.attribute("id").value();
    pattern->name = context.ResourceName(element);
    pugi::xml_node content = FollowHref(
        context, element, [&](pugi::xml_node e) { return context.names.SvgName(e) == "pattern"; },
        [](pugi::xml_node e) {
            return static_cast<bool>(e.find_child(
                [](pugi::xml_node child) { return child.type() == pugi::node_element; }));
        });
    patternSources_.push_back({pattern.get(), element, content});
    if (!pattern->id.empty()) {
        patterns_.emplace(pattern->id, pattern.get());
    }
    context.document.patterns.push_back(std::move(pattern));
}

document::CustomColor* SvgResources::Swatch(const std::string& id) const {
    return FindIn(swatches_, id);
}
document::Gradient* SvgResources::Gradient(const std::string& id) const {
    return FindIn(gradients_, id);
}
document::Pattern* SvgResources::Pattern(const std::string& id) const {
    return FindIn(patterns_, id);
}
document::Brush* SvgResources::Brush(const std::string& id) const { return FindIn(brushes_, id); }

const std::vector<Color>* SvgResources::Mesh(const std::string& id) const {
    auto found = meshes_.find(id);
    return found == meshes_.end() ? nullptr : &found->second;
}

document::GraphicStyle* SvgResources::GraphicStyleNamed(document::Document& document,
                                                        const std::string& name) {
    for (auto& style : document.graphicStyles) {
        if (style->name == name) {
            return style.get();
        }
    }
    document.graphicStyles.push_back(std::make_unique<document::GraphicStyle>());
    document.graphicStyles.back()->name = name;
    return document.graphicStyles.back().get();
}

ResolvedPaint SvgResources::Resolve(const PaintValue& paint, const ParsedColor& current) const {
    ResolvedPaint resolved;
    auto fromColor = [&](const ParsedColor& color) {
        resolved.painted = true;
        resolved.color = color.color;
        resolved.alpha = color.alpha;
    };
    switch (paint.kind) {
        case PaintValue::Kind::None:
            return resolved;
        case PaintValue::Kind::Color:
            fromColor(paint.color);
            return resolved;
        case PaintValue::Kind::CurrentColor:
            fromColor(current);
            return resolved;
        case PaintValue::Kind::Url:
            break;
    }
    if (auto* swatch = Swatch(paint.url)) {
        resolved.painted = true;
        resolved.color.kind = ColorKind::Custom;
        resolved.color.custom = swatch;
        resolved.color.tint = 0;
    } else if (auto* gradient = Gradient(paint.url)) {
        resolved.painted = true;
        resolved.color.kind = ColorKind::Gradient;
        resolved.color.gradient = gradient;
    } else if (auto* pattern = Pattern(paint.url)) {
        resolved.painted = true;
        resolved.color.kind = ColorKind::Pattern;
        resolved.color.pattern = pattern;
    } else if (auto* mesh = Mesh(paint.url)) {
        resolved.mesh = mesh;
    } else if (paint.fallbackKind == PaintValue::Kind::Color) {
        fromColor(paint.fallbackColor);
    } else if (paint.fallbackKind == PaintValue::Kind::CurrentColor) {
        fromColor(current);
    }
    return resolved;
}

}  // namespace zm::host::svg
