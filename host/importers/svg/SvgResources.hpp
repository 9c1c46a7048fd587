#pragma once

#include "document/Document.hpp"
#include "importers/svg/SvgPaint.hpp"

#include <pugixml.hpp>

#include <string>
#include <unordered_map>
#include <vector>

namespace zm::host::svg {

struct ImportContext;

// A paint after its url() has been looked up.
struct ResolvedPaint {
    bool painted = false;
    document::Color color;
    double alpha = 1;  // of a colour written with alpha ("rgba(...)", "#rgba")
    // Set when the paint is a mesh gradient: its colours in document order.
    const std::vector<document::Color>* mesh = nullptr;
};

// The document's paint servers and named resources, read from the whole document before
// the art: swatches, gradients (with their href chains), mesh gradients, patterns (whose
// art is made later by the art converter), brushes and graphic styles.
class SvgResources {
public:
    void Collect(ImportContext& context);

    document::CustomColor* Swatch(const std::string& id) const;
    document::Gradient* Gradient(const std::string& id) const;
    document::Pattern* Pattern(const std::string& id) const;
    document::Brush* Brush(const std::string& id) const;
    const std::vector<document::Color>* Mesh(const std::string& id) const;

    // The named graphic style, made on first use.
    document::GraphicStyle* GraphicStyleNamed(document::Document& document,
                                              const std::string& name);

    // url(#id) looked up among the paint servers; a missing target gives the fallback, or
    // no paint, as a browser draws it. currentColor takes `current`.
    ResolvedPaint Resolve(const PaintValue& paint, const ParsedColor& current) const;

    // Each pattern with its element and the element whose children are its content (its own
    // or, through href, another pattern's).
    struct PatternSource {
        document::Pattern* pattern;
        pugi::xml_node element;
        pugi::xml_node content;
    };
    const std::vector<PatternSource>& PatternSources() const { return patternSources_; }

private:
    void AddSwatch(ImportContext& context, pugi::xml_node element);
    void AddGradient(ImportContext& context, pugi::xml_node element);
    void AddMesh(ImportContext& context, pugi::xml_node element);
    void AddPattern(ImportContext& context, pugi::xml_node element);
    void AddBrush(ImportContext& context, pugi::xml_node element);
    document::Color StopColor(ImportContext& context, pugi::xml_node stop, double& opacity);

    std::unordered_map<std::string, document::CustomColor*> swatches_;
    std::unordered_map<std::string, document::Gradient*> gradients_;
    std::unordered_map<std::string, document::Pattern*> patterns_;
    std::unordered_map<std::string, document::Brush*> brushes_;
    std::unordered_map<std::string, std::vector<document::Color>> meshes_;
    std::vector<PatternSource> patternSources_;
};

}  // namespace zm::host::svg
