#include "support/DocumentBuilder.hpp"

#include <memory>
#include <utility>

namespace zm::test {

using host::document::Art;
using host::document::ArtType;
using host::document::PathGeometry;
using host::document::Point;
using host::document::Segment;

host::document::Layer& AddLayer(host::document::Document& document, std::string name) {
    auto layer = std::make_unique<host::document::Layer>();
    layer->name = std::move(name);
    document.layers.push_back(std::move(layer));
    return *document.layers.back();
}

Art& AddArt(Art& parent, ArtType type, std::string id) {
    auto art = std::make_unique<Art>(type, id);
    art->name = std::move(id);
    return parent.Add(std::move(art));
}

PathGeometry StraightPath(const std::vector<Point>& points, bool closed) {
    PathGeometry geometry;
    geometry.closed = closed;
    for (const Point& point : points) {
        geometry.segments.push_back(Segment{point, point, point, true});
    }
    return geometry;
}

PathGeometry CirclePath(Point center, double radius) {
    const double handle = 0.5522847498 * radius;
    const double cx = center.x;
    const double cy = center.y;
    PathGeometry geometry;
    geometry.closed = true;
    // Counter-clockwise: each anchor's out point leads towards the next anchor.
    geometry.segments = {
        {{cx + radius, cy}, {cx + radius, cy - handle}, {cx + radius, cy + handle}, false},
        {{cx, cy + radius}, {cx + handle, cy + radius}, {cx - handle, cy + radius}, false},
        {{cx - radius, cy}, {cx - radius, cy + handle}, {cx - radius, cy - handle}, false},
        {{cx, cy - radius}, {cx - handle, cy - radius}, {cx + handle, cy - radius}, false},
    };
    return geometry;
}

Art& AddPath(Art& parent, PathGeometry geometry, std::string id) {
    Art& path = AddArt(parent, ArtType::Path, std::move(id));
    path.path = std::move(geometry);
    return path;
}

Art& AddRectangle(Art& parent, double left, double bottom, double width, double height,
                  std::string id) {
    double right = left + width;
    double top = bottom + height;
    return AddPath(parent,
                   StraightPath({{left, bottom}, {right, bottom}, {right, top}, {left, top}}, true),
                   std::move(id));
}

}  // namespace zm::test
