#pragma once

#include "document/Art.hpp"
#include "importers/svg/SvgBoundingBox.hpp"
#include "importers/svg/SvgImportContext.hpp"
#include "importers/svg/SvgPathData.hpp"

#include <pugixml.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace zm::host::svg {

// Turns SVG elements into art. Transforms: `parentToModel` maps the user units of the
// element's parent to model points; the element's own transform is applied here.
class SvgArtConverter {
public:
    explicit SvgArtConverter(ImportContext& context) : context_(context) {}

    // The art an element draws, or null for elements that draw nothing by themselves
    // (definitions, metadata, unknown elements) and for broken references. depth counts the
    // nesting so far, references included.
    std::unique_ptr<document::Art> Convert(pugi::xml_node element, const Affine& parentToModel,
                                           int depth);
    // Each child of element that draws something, appended to `into`.
    void ConvertChildren(pugi::xml_node element, const Affine& toModel, document::Art& into,
                         int depth);

    // Fills the definition group of each pattern no art painted with, as if a unit box at the
    // root's origin used it. Patterns that art paints with are made as that art is converted.
    void ConvertUnusedPatterns();

    // The outline of a shape element (path, rect, circle, ellipse, line, polyline,
    // polygon) in its own user units; empty for anything else.
    std::vector<Subpath> Outline(pugi::xml_node element) const;
    // A path object of the shape's first subpath, painted as the shape is, for the frame of
    // area and path text. Null when the element is no shape.
    std::unique_ptr<document::Art> FramePath(pugi::xml_node shape, const Affine& parentToModel);

    // Every art object made for the document is made here, so that a document cannot
    // make the importer build without end (references multiply art).
    std::unique_ptr<document::Art> NewArt(document::ArtType type, pugi::xml_node element);

    // The rectangle an element's x, y, width and height attributes give (images, foreign
    // objects), in model points after the transform.
    document::Rect BoxBounds(pugi::xml_node element, const Affine& toModel) const;

    // fill, stroke, fill rule, stroke width (in points) and brush of an element.
    document::PathStyle PaintStyle(pugi::xml_node element, const Affine& toModel);

    ImportContext& Context() { return context_; }
    // Whether a reference to id may be followed now: not one that is being expanded.
    bool IsActive(const std::string& id) const { return active_.count(id) != 0; }

    static constexpr std::size_t kMaxArtCount = 1'000'000;

private:
    std::unique_ptr<document::Art> ConvertShape(pugi::xml_node element, std::string_view name,
                                                const Affine& toModel);
    std::unique_ptr<document::Art> ConvertGroup(pugi::xml_node element, const Affine& toModel,
                                                int depth);
    std::unique_ptr<document::Art> ConvertUse(pugi::xml_node element, const Affine& toModel,
                                              int depth);
    // Target user units to model points for the instance a <use> makes: the <use>'s transform
    // (in toModel), then its x and y, then a symbol's viewBox fitted to the <use>'s size.
    Affine UsePlacement(pugi::xml_node use, pugi::xml_node target, const Affine& toModel) const;
    document::Symbol* SymbolFor(pugi::xml_node target, int depth);
    // Name, blend, graphic style and opacity mask of any art.
    void ApplyCommon(document::Art& art, pugi::xml_node element, const Affine& toModel, int depth);
    // The clip group holding the clip paths and the art, or the art itself.
    std::unique_ptr<document::Art> ApplyClip(std::unique_ptr<document::Art> art,
                                             pugi::xml_node element, const Affine& toModel,
                                             int depth);
    // Makes the definition of each pattern the art paints with (its own paint, its text runs')
    // for this art's user space and bounding box, unless it is made already.
    void PlacePatterns(const document::Art& art, const Affine& toModel, int depth);
    void ConvertPattern(document::Pattern& pattern, const Affine& userToModel, const UserBox& box,
                        int depth);
    void ApplyLiveShape(document::Art& art, pugi::xml_node element, std::string_view name,
                        const Affine& toModel);

    ImportContext& context_;
    std::unordered_set<std::string> active_;  // ids of references being expanded
    std::unordered_map<std::string, document::Symbol*> symbols_;
    std::unordered_set<const document::Pattern*> placedPatterns_;
    std::size_t artCount_ = 0;
};

}  // namespace zm::host::svg
