#pragma once

#include <document/Art.hpp>
#include <document/Document.hpp>
#include <document/Geometry.hpp>
#include <string>
#include <vector>

namespace zm::test {

// Documents built by hand for host tests, geometry in points. Art made here is named by its
// id, as the importer names art without a label.

// A new layer under the others (index = the count before).
host::document::Layer& AddLayer(host::document::Document& document, std::string name);

// New art as the last member of parent (a layer's root, a group, a compound path, ...).
host::document::Art& AddArt(host::document::Art& parent, host::document::ArtType type,
                            std::string id = {});

// Corner anchors joined by straight lines.
host::document::PathGeometry StraightPath(const std::vector<host::document::Point>& points,
                                          bool closed);

// A closed circle of four quarter curves, anchors at the right, top, left and bottom, each
// direction point 0.5522847498 * radius from its anchor along the tangent.
host::document::PathGeometry CirclePath(host::document::Point center, double radius);

host::document::Art& AddPath(host::document::Art& parent, host::document::PathGeometry geometry,
                             std::string id = {});

// A closed rectangle path; anchors from the bottom-left corner, counter-clockwise.
host::document::Art& AddRectangle(host::document::Art& parent, double left, double bottom,
                                  double width, double height, std::string id = {});

}  // namespace zm::test
