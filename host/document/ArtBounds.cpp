#include "document/ArtBounds.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <memory>

namespace zm::host::document {

namespace {

// A rectangle that grows to hold what is added to it.
class Extent {
public:
    void Add(Point p) {
        if (!rect_) {
            rect_ = Rect{p.x, p.y, p.x, p.y};
            return;
        }
        rect_->left = std::min(rect_->left, p.x);
        rect_->right = std::max(rect_->right, p.x);
        rect_->bottom = std::min(rect_->bottom, p.y);
        rect_->top = std::max(rect_->top, p.y);
    }
    void Add(const std::optional<Rect>& r) {
        if (r) {
            Add(Point{r->left, r->bottom});
            Add(Point{r->right, r->top});
        }
    }
    const std::optional<Rect>& Result() const { return rect_; }

private:
    std::optional<Rect> rect_;
};

double Cubic(double p0, double p1, double p2, double p3, double t) {
    double u = 1 - t;
    return u * u * u * p0 + 3 * u * u * t * p1 + 3 * u * t * t * p2 + t * t * t * p3;
}

struct TurningPoints {
    std::array<double, 2> t{};
    std::size_t count = 0;
    void Keep(double value) {
        if (value > 0 && value < 1) {
            t[count++] = value;
        }
    }
};

// Parameters in (0, 1) where one coordinate of the curve turns: the roots of its derivative,
// a t^2 + b t + c with d0, d1, d2 the differences of successive control values.
TurningPoints FindTurningPoints(double p0, double p1, double p2, double p3) {
    double d0 = p1 - p0;
    double d1 = p2 - p1;
    double d2 = p3 - p2;
    double a = d0 - 2 * d1 + d2;
    double b = 2 * (d1 - d0);
    double c = d0;
    TurningPoints found;
    if (std::abs(a) < 1e-12) {
        if (b != 0) {
            found.Keep(-c / b);
        }
        return found;
    }
    double discriminant = b * b - 4 * a * c;
    if (discriminant >= 0) {
        double root = std::sqrt(discriminant);
        found.Keep((-b + root) / (2 * a));
        found.Keep((-b - root) / (2 * a));
    }
    return found;
}

void AddCurve(Point p0, Point p1, Point p2, Point p3, Extent& extent) {
    extent.Add(p3);
    for (const TurningPoints& turns :
         {FindTurningPoints(p0.x, p1.x, p2.x, p3.x), FindTurningPoints(p0.y, p1.y, p2.y, p3.y)}) {
        for (std::size_t i = 0; i < turns.count; ++i) {
            double t = turns.t[i];
            extent.Add(Point{Cubic(p0.x, p1.x, p2.x, p3.x, t), Cubic(p0.y, p1.y, p2.y, p3.y, t)});
        }
    }
}

bool IsClippingPath(const Art& art) { return art.style.clip; }

// PathBounds and ArtBounds with every point moved by map first.
std::optional<Rect> MappedPathBounds(const PathGeometry& path, const PointMap& map) {
    const std::vector<Segment>& segments = path.segments;
    if (segments.empty()) {
        return std::nullopt;
    }
    Extent extent;
    extent.Add(map(segments.front().anchor));
    std::size_t pieces = path.closed ? segments.size() : segments.size() - 1;
    for (std::size_t i = 0; i < pieces; ++i) {
        const Segment& from = segments[i];
        const Segment& to = segments[(i + 1) % segments.size()];
        AddCurve(map(from.anchor), map(from.out), map(to.in), map(to.anchor), extent);
    }
    return extent.Result();
}

std::optional<Rect> MappedArtBounds(const Art& art, const PointMap& map) {
    if (art.bounds) {
        Extent extent;
        for (Point corner : {Point{art.bounds->left, art.bounds->top},
                             Point{art.bounds->right, art.bounds->top},
                             Point{art.bounds->right, art.bounds->bottom},
                             Point{art.bounds->left, art.bounds->bottom}}) {
            extent.Add(map(corner));
        }
        return extent.Result();
    }
    if (art.Type() == ArtType::Path) {
        return MappedPathBounds(art.path, map);
    }
    if (art.Type() == ArtType::TextFrame && art.text && art.text->framePath) {
        return MappedArtBounds(*art.text->framePath, map);
    }
    const auto& children = art.Children();
    bool clipped = art.clipGroup && std::any_of(children.begin(), children.end(),
                                                [](const std::unique_ptr<Art>& child) {
                                                    return IsClippingPath(*child);
                                                });
    Extent extent;
    for (const auto& child : children) {
        if (!clipped || IsClippingPath(*child)) {
            extent.Add(MappedArtBounds(*child, map));
        }
    }
    return extent.Result();
}

Point Unmoved(const Point& p) { return p; }

}  // namespace

std::optional<Rect> PathBounds(const PathGeometry& path) { return MappedPathBounds(path, Unmoved); }

std::optional<Rect> ArtBounds(const Art& art) { return MappedArtBounds(art, Unmoved); }

std::optional<Rect> ArtBoundsAfter(const Art& art, const PointMap& map) {
    return MappedArtBounds(art, map);
}

}  // namespace zm::host::document
