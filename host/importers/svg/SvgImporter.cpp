#include "importers/svg/SvgImporter.hpp"

#include "importers/DocumentImport.hpp"
#include "importers/svg/SvgArtConverter.hpp"
#include "importers/svg/SvgColorProfiles.hpp"
#include "importers/svg/SvgDocumentSettings.hpp"
#include "importers/svg/SvgImportContext.hpp"
#include "importers/svg/SvgImportFailure.hpp"
#include "importers/svg/SvgTreeWalk.hpp"

#include <pugixml.hpp>

#include <algorithm>
#include <string>

namespace zm::host {

namespace {

using document::Art;
using document::Document;
using document::Layer;
using svg::ImportContext;
using svg::Vocabulary;

std::string ParseErrorText(std::string_view text, const pugi::xml_parse_result& result) {
    auto offset = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, result.offset));
    offset = std::min(offset, text.size());
    std::size_t line = 1 + static_cast<std::size_t>(std::count(
                               text.begin(), text.begin() + static_cast<long>(offset), '\n'));
    std::size_t lineStart = text.rfind('\n', offset == 0 ? 0 : offset - 1);
    std::size_t column =
        lineStart == std::string_view::npos || offset == 0 ? offset + 1 : offset - lineStart;
    return "not well-formed XML: " + std::string(result.description()) + " at line " +
           std::to_string(line) + ", column " + std::to_string(column);
}

bool IsLayerElement(const ImportContext& context, pugi::xml_node element) {
    return context.names.SvgName(element) == "g" &&
           (context.names.Value(element, Vocabulary::Inkscape, "groupmode") == "layer" ||
            context.names.Attribute(element, Vocabulary::Zelmora, "layer"));
}

std::string LayerName(const ImportContext& context, pugi::xml_node element, std::size_t index) {
    for (std::string_view name : {context.names.Value(element, Vocabulary::Zelmora, "layer"),
                                  context.names.Value(element, Vocabulary::Inkscape, "label"),
                                  std::string_view(element.attribute("id").value())}) {
        if (!name.empty()) {
            return std::string(name);
        }
    }
    return "Layer " + std::to_string(index + 1);
}

// Top-level layer groups become layers; art beside them gathers in one implicit layer,
// made where the first such art stands.
void BuildLayers(ImportContext& context, svg::SvgArtConverter& converter) {
    Document& document = context.document;
    Layer* implicit = nullptr;
    for (pugi::xml_node child : context.root.children()) {
        if (IsLayerElement(context, child)) {
            auto layer = std::make_unique<Layer>();
            layer->name = LayerName(context, child, document.layers.size());
            svg::Affine toModel = context.rootToModel;
            if (auto transform = svg::ParseTransform(child.attribute("transform").value())) {
                toModel = toModel * *transform;
            }
            layer->root = converter.NewArt(document::ArtType::Group, child);
            layer->root->name = layer->name;
            const svg::ComputedStyle& style = context.styles.For(child);
            layer->root->blend.opacity = style.opacity;
            layer->root->blend.mode = style.blendMode;
            converter.ConvertChildren(child, toModel, *layer->root, 1);
            document.layers.push_back(std::move(layer));
            continue;
        }
        auto art = converter.Convert(child, context.rootToModel, 1);
        if (!art) {
            continue;
        }
        if (!implicit) {
            auto layer = std::make_unique<Layer>();
            layer->name = "Layer 1";
            implicit = layer.get();
            document.layers.push_back(std::move(layer));
        }
        implicit->root->Add(std::move(art));
    }
}

void CheckNesting(pugi::xml_node root) {
    svg::ForEachElement(root, [](pugi::xml_node, std::size_t depth) {
        if (depth > static_cast<std::size_t>(svg::kMaxNesting)) {
            throw svg::SvgImportFailure("elements nested too deeply");
        }
    });
}

}  // namespace

std::unique_ptr<Document> ImportSvgFile(const std::filesystem::path& file) {
    return ImportSvgText(ReadDocumentBytes(file), file);
}

std::unique_ptr<Document> ImportSvgText(std::string_view text, const std::filesystem::path& file) {
    pugi::xml_document xml;
    pugi::xml_parse_result result =
        xml.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_auto);
    if (!result) {
        throw DocumentOpenError(file, ParseErrorText(text, result));
    }
    pugi::xml_node root = xml.document_element();
    try {
        svg::SvgNames names(root);
        if (names.SvgName(root) != "svg") {
            throw svg::SvgImportFailure("the root element is <" + std::string(root.name()) +
                                        ">, not <svg>");
        }
        CheckNesting(root);
        auto document = std::make_unique<Document>();
        document->filePath = file;
        ImportContext context(*document, root, file.parent_path());
        svg::ReadRootGeometry(context);
        context.resources.Collect(context);
        svg::ReadColorProfiles(context);
        svg::ReadDocumentSettings(context);
        svg::SvgArtConverter converter(context);
        BuildLayers(context, converter);
        converter.ConvertUnusedPatterns();
        return document;
    } catch (const svg::SvgImportFailure& failure) {
        throw DocumentOpenError(file, failure.what());
    }
}

}  // namespace zm::host
