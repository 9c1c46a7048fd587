#pragma once

#include <document/Document.hpp>

#include <zelmora/ZMArtTypes.h>

#include <memory>
#include <string>

namespace zm::test {

// A document whose art shows every kind of style, built by hand:
//   plain    path, red RGB fill, no stroke, anonymous style
//   brushed  path, no fill, CMYK stroke 2 pt carrying the brush "Charcoal" (&Art Brush),
//            multiply at opacity 0.5 with stroke opacity 0.8, anonymous style
//   shadow1, shadow2  paths with the graphic style "Shadow", gray fill: one shared style
//   shadow3  path with the graphic style "Shadow" but a gray fill of 0.5: another "Shadow"
//   group    a group, which paints nothing itself
struct StyledDocument {
    explicit StyledDocument(host::document::Document& document) : document(document) {
        using namespace host::document;
        auto charcoal = std::make_unique<Brush>();
        charcoal->name = "Charcoal";
        charcoal->typeTitle = "&Art Brush";
        brush = charcoal.get();
        document.brushes.push_back(std::move(charcoal));
        auto scatter = std::make_unique<Brush>();
        scatter->name = "Confetti";
        scatter->typeTitle = "&Scatter Brush";
        document.brushes.push_back(std::move(scatter));
        auto style = std::make_unique<GraphicStyle>();
        style->name = "Shadow";
        shadow = style.get();
        document.graphicStyles.push_back(std::move(style));

        auto layer = std::make_unique<Layer>();
        layer->name = "Layer 1";
        plain = &Add(*layer, ArtType::Path, "plain");
        plain->style.fillPaint = true;
        plain->style.fill = Color::Rgb(1, 0, 0);

        brushed = &Add(*layer, ArtType::Path, "brushed");
        brushed->style.strokePaint = true;
        brushed->style.stroke.kind = ColorKind::Cmyk;
        brushed->style.stroke.cmyk = {0.1, 0.2, 0.3, 0.4};
        brushed->style.strokeWidth = 2;
        brushed->style.brush = brush;
        brushed->blend.mode = BlendMode::Multiply;
        brushed->blend.opacity = 0.5;
        brushed->blend.strokeOpacity = 0.8;

        shadow1 = &AddShadow(*layer, "shadow1", 0.25);
        shadow2 = &AddShadow(*layer, "shadow2", 0.25);
        shadow3 = &AddShadow(*layer, "shadow3", 0.5);
        group = &Add(*layer, ArtType::Group, "group");
        document.layers.push_back(std::move(layer));
    }

    static host::document::Art& Add(host::document::Layer& layer, host::document::ArtType type,
                                    std::string id) {
        return layer.root->Add(std::make_unique<host::document::Art>(type, std::move(id)));
    }

    host::document::Art& AddShadow(host::document::Layer& layer, std::string id, double gray) {
        host::document::Art& art = Add(layer, host::document::ArtType::Path, std::move(id));
        art.style.fillPaint = true;
        art.style.fill.kind = host::document::ColorKind::Gray;
        art.style.fill.gray = gray;
        art.graphicStyle = shadow;
        return art;
    }

    host::document::Document& document;
    host::document::Brush* brush = nullptr;
    host::document::GraphicStyle* shadow = nullptr;
    host::document::Art* plain = nullptr;
    host::document::Art* brushed = nullptr;
    host::document::Art* shadow1 = nullptr;
    host::document::Art* shadow2 = nullptr;
    host::document::Art* shadow3 = nullptr;
    host::document::Art* group = nullptr;
};

// Art handles are the model objects' addresses.
inline ZMArtHandle HandleOf(host::document::Art* art) { return reinterpret_cast<ZMArtHandle>(art); }

}  // namespace zm::test
