#include "importers/svg/SvgDocumentSettings.hpp"

#include "importers/svg/SvgAttributes.hpp"
#include "importers/svg/SvgImportContext.hpp"
#include "importers/svg/SvgLength.hpp"
#include "importers/svg/SvgNumbers.hpp"
#include "importers/svg/SvgTreeWalk.hpp"
#include "importers/svg/SvgViewport.hpp"

#include <algorithm>
#include <optional>
#include <string>

namespace zm::host::svg {

namespace {

using document::Document;

// A root size attribute in pixels; percentages and bad values count as absent.
std::optional<double> RootLength(pugi::xml_node root, const char* name) {
    auto length = ParseLength(root.attribute(name).value());
    if (!length || length->unit == LengthUnit::Percent || length->value < 0) {
        return std::nullopt;
    }
    return ToPixels(*length);
}

int16_t ColorModelNamed(std::string_view name) {
    name = TrimSvgSpace(name);
    if (name.empty() || name == "rgb") return document::kColorModelRgb;
    if (name == "cmyk") return document::kColorModelCmyk;
    if (name == "gray") return document::kColorModelGray;
    return 3;  // a model the host does not know
}

std::optional<document::RulerUnits> UnitsOfRoot(const ImportContext& context) {
    if (auto units =
            RulerUnitsNamed(context.names.Value(context.root, Vocabulary::Zelmora, "units"))) {
        return units;
    }
    // Inkscape keeps its setting on the named view.
    for (pugi::xml_node child : context.root.children()) {
        if (context.names.Is(child, Vocabulary::Sodipodi, "namedview")) {
            if (auto units = RulerUnitsNamed(
                    context.names.Value(child, Vocabulary::Inkscape, "document-units"))) {
                return units;
            }
        }
    }
    if (auto units = RulerUnitsNamed(
            context.names.Value(context.root, Vocabulary::Inkscape, "document-units"))) {
        return units;
    }
    if (auto width = ParseLength(context.root.attribute("width").value())) {
        return RulerUnitsOf(width->unit);
    }
    return std::nullopt;
}

// Rectangles in root user units: zm:artboard elements, else Inkscape pages.
void ReadArtboards(ImportContext& context) {
    Document& document = context.document;
    auto add = [&](pugi::xml_node element, std::string_view name) {
        double x = LengthAttribute(element, "x", 0), y = LengthAttribute(element, "y", 0);
        double width = std::max(0.0, LengthAttribute(element, "width", 0));
        double height = std::max(0.0, LengthAttribute(element, "height", 0));
        document::Artboard artboard;
        artboard.name = name.empty() ? "Artboard " + std::to_string(document.artboards.size() + 1)
                                     : std::string(name);
        artboard.bounds = TransformedBounds(context.rootToModel, x, y, x + width, y + height);
        document.artboards.push_back(std::move(artboard));
    };
    ForEachElement(context.root, [&](pugi::xml_node element, std::size_t) {
        if (context.names.Is(element, Vocabulary::Zelmora, "artboard")) {
            add(element, element.attribute("name").value());
        }
    });
    if (document.artboards.empty()) {
        ForEachElement(context.root, [&](pugi::xml_node element, std::size_t) {
            if (context.names.Is(element, Vocabulary::Inkscape, "page")) {
                add(element, context.names.Value(element, Vocabulary::Inkscape, "label"));
            }
        });
    }
    if (document.artboards.empty()) {
        document.artboards.push_back(
            {"Artboard 1", {0, document.setup.height, document.setup.width, 0}});
    }
}

}  // namespace

void ReadRootGeometry(ImportContext& context) {
    pugi::xml_node root = context.root;
    auto box = ParseViewBox(root.attribute("viewBox").value());
    std::optional<double> width = RootLength(root, "width");
    std::optional<double> height = RootLength(root, "height");
    // A missing size follows the viewBox: its own size, or the other size's proportion.
    if (box && width && !height) height = *width * box->height / box->width;
    if (box && height && !width) width = *height * box->width / box->height;
    double widthPx = std::clamp(width.value_or(box ? box->width : 300), 0.0, kCoordinateLimit);
    double heightPx = std::clamp(height.value_or(box ? box->height : 150), 0.0, kCoordinateLimit);

    Document& document = context.document;
    document.setup.width = widthPx * kPointsPerPixel;
    document.setup.height = heightPx * kPointsPerPixel;
    // Pixels to points, and y turned upwards from the bottom edge.
    Affine pixelsToModel{kPointsPerPixel, 0, 0, -kPointsPerPixel, 0, document.setup.height};
    if (box && widthPx > 0 && heightPx > 0) {
        context.rootToModel =
            pixelsToModel * ViewBoxTransform(*box, root.attribute("preserveAspectRatio").value(),
                                             widthPx, heightPx);
        context.viewportWidth = box->width;
        context.viewportHeight = box->height;
    } else {
        context.rootToModel = pixelsToModel;
        context.viewportWidth = widthPx;
        context.viewportHeight = heightPx;
    }
}

void ReadDocumentSettings(ImportContext& context) {
    Document& document = context.document;
    const SvgNames& names = context.names;
    pugi::xml_node root = context.root;
    auto setting = [&](std::string_view local) {
        return names.Attribute(root, Vocabulary::Zelmora, local);
    };
    document.colorModel = ColorModelNamed(setting("color-model").value());
    document.rulerUnits = UnitsOfRoot(context).value_or(document::RulerUnits::Pixels);
    ReadArtboards(context);
    if (auto attribute = setting("preserve-text-editability")) {
        document.dictionary[document::kPreserveTextEditabilityKey] =
            BooleanValue(attribute.value(), true);
    }
    if (auto attribute = setting("paper-simulation")) {
        document.dictionary[document::kPaperSimulationKey] = BooleanValue(attribute.value(), false);
    }
    document.setup.showPlacedImages = BooleanValue(setting("show-placed-images").value(), false);
    document.highlightSubstitutedFonts =
        BooleanValue(setting("highlight-substituted-fonts").value(), false);
    document.highlightSubstitutedGlyphs =
        BooleanValue(setting("highlight-substituted-glyphs").value(), false);
}

}  // namespace zm::host::svg
