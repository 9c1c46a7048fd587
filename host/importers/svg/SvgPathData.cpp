#include "importers/svg/SvgPathData.hpp"

#include "importers/svg/SvgNumbers.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace zm::host::svg {

using document::Point;

void Subpath::LineTo(const Point& p) { pieces.push_back({Current(), p, p}); }

void Subpath::CurveTo(const Point& c1, const Point& c2, const Point& p) {
    pieces.push_back({c1, c2, p});
}

namespace {

Point Add(const Point& a, const Point& b) { return {a.x + b.x, a.y + b.y}; }
Point Reflect(const Point& control, const Point& about) {
    return {2 * about.x - control.x, 2 * about.y - control.y};
}

// Angle from vector u to vector v, signed.
double VectorAngle(double ux, double uy, double vx, double vy) {
    double angle = std::atan2(ux * vy - uy * vx, ux * vx + uy * vy);
    return std::isfinite(angle) ? angle : 0;
}

bool IsCommand(char c) {
    switch (c) {
        case 'M':
        case 'm':
        case 'L':
        case 'l':
        case 'H':
        case 'h':
        case 'V':
        case 'v':
        case 'C':
        case 'c':
        case 'S':
        case 's':
        case 'Q':
        case 'q':
        case 'T':
        case 't':
        case 'A':
        case 'a':
        case 'Z':
        case 'z':
            return true;
        default:
            return false;
    }
}

class PathDataReader {
public:
    explicit PathDataReader(std::string_view data) : scanner_(data) {}

    std::vector<Subpath> Read() {
        char command = 0;
        while (!scanner_.AtEnd()) {
            char c = scanner_.Peek();
            if (IsCommand(c)) {
                if (command == 0 && c != 'M' && c != 'm') {
                    break;  // path data starts with a moveto
                }
                scanner_.Advance();
                command = c;
            } else if (command == 0 || command == 'Z' || command == 'z') {
                break;  // numbers with no command before them, or after a closepath
            } else if (command == 'M') {
                command = 'L';  // coordinates after a moveto are implicit linetos
            } else if (command == 'm') {
                command = 'l';
            }
            if (!Execute(command)) {
                break;
            }
        }
        Finish();
        return std::move(subpaths_);
    }

private:
    std::optional<Point> ReadPoint(bool relative) {
        auto x = scanner_.Next();
        if (!x) {
            return std::nullopt;
        }
        auto y = scanner_.Next();
        if (!y) {
            return std::nullopt;
        }
        Point p{*x, *y};
        return relative ? Add(p, Current()) : p;
    }

    Point Current() const { return open_ ? current_.Current() : lastStart_; }

    // A drawing command after a closepath starts again at the closed subpath's start.
    Subpath& Drawing() {
        if (!open_) {
            Begin(lastStart_);
        }
        return current_;
    }

    void Begin(const Point& p) {
        Finish();
        current_ = Subpath{};
        current_.start = p;
        open_ = true;
        lastStart_ = p;
    }

    void Finish() {
        if (open_ && !current_.pieces.empty()) {
            subpaths_.push_back(std::move(current_));
        }
        current_ = Subpath{};
        open_ = false;
    }

    bool Execute(char command) {
        bool relative = command >= 'a' && command <= 'z';
        char upper = relative ? static_cast<char>(command - 'a' + 'A') : command;
        if (upper != 'C' && upper != 'S') {
            lastCubicControl_.reset();
        }
        if (upper != 'Q' && upper != 'T') {
            lastQuadControl_.reset();
        }
        switch (upper) {
            case 'M': {
                auto p = ReadPoint(relative);
                if (!p) return false;
                Begin(*p);
                return true;
            }
            case 'L': {
                auto p = ReadPoint(relative);
                if (!p) return false;
                Drawing().LineTo(*p);
                return true;
            }
            case 'H': {
                auto x = scanner_.Next();
                if (!x) return false;
                Point from = Current();
                Drawing().LineTo({relative ? from.x + *x : *x, from.y});
                return true;
            }
            case 'V': {
                auto y = scanner_.Next();
                if (!y) return false;
                Point from = Current();
                Drawing().LineTo({from.x, relative ? from.y + *y : *y});
                return true;
            }
            case 'C': {
                auto c1 = ReadPoint(relative);
                auto c2 = c1 ? ReadPoint(relative) : std::nullopt;
                auto p = c2 ? ReadPoint(relative) : std::nullopt;
                if (!p) return false;
                Drawing().CurveTo(*c1, *c2, *p);
                lastCubicControl_ = *c2;
                return true;
            }
            case 'S': {
                auto c2 = ReadPoint(relative);
                auto p = c2 ? ReadPoint(relative) : std::nullopt;
                if (!p) return false;
                Point from = Current();
                Point c1 = lastCubicControl_ ? Reflect(*lastCubicControl_, from) : from;
                Drawing().CurveTo(c1, *c2, *p);
                lastCubicControl_ = *c2;
                return true;
            }
            case 'Q': {
                auto q = ReadPoint(relative);
                auto p = q ? ReadPoint(relative) : std::nullopt;
                if (!p) return false;
                Quadratic(*q, *p);
                return true;
            }
            case 'T': {
                auto p = ReadPoint(relative);
                if (!p) return false;
                Point from = Current();
                Point q = lastQuadControl_ ? Reflect(*lastQuadControl_, from) : from;
                Quadratic(q, *p);
                return true;
            }
            case 'A': {
                auto rx = scanner_.Next();
                auto ry = rx ? scanner_.Next() : std::nullopt;
                auto rotation = ry ? scanner_.Next() : std::nullopt;
                auto large = rotation ? scanner_.NextFlag() : std::nullopt;
                auto sweep = large ? scanner_.NextFlag() : std::nullopt;
                auto p = sweep ? ReadPoint(relative) : std::nullopt;
                if (!p) return false;
                AppendArc(Drawing(), *rx, *ry, *rotation, *large, *sweep, *p);
                return true;
            }
            case 'Z': {
                if (open_) {
                    current_.closed = true;
                    current_.returnsToStart = true;
                    lastStart_ = current_.start;
                    Finish();
                }
                return true;
            }
            default:
                return false;
        }
    }

    // A quadratic curve is exactly the cubic whose controls lie 2/3 of the way to q.
    void Quadratic(const Point& q, const Point& p) {
        Point from = Current();
        Point c1{from.x + 2.0 / 3 * (q.x - from.x), from.y + 2.0 / 3 * (q.y - from.y)};
        Point c2{p.x + 2.0 / 3 * (q.x - p.x), p.y + 2.0 / 3 * (q.y - p.y)};
        Drawing().CurveTo(c1, c2, p);
        lastQuadControl_ = q;
    }

    NumberScanner scanner_;
    std::vector<Subpath> subpaths_;
    Subpath current_;
    bool open_ = false;  // current_ holds the subpath being drawn
    Point lastStart_;
    std::optional<Point> lastCubicControl_;
    std::optional<Point> lastQuadControl_;
};

}  // namespace

std::vector<Subpath> ParsePathData(std::string_view data) { return PathDataReader(data).Read(); }

void AppendArc(Subpath& subpath, double rx, double ry, double xAxisRotation, bool largeArc,
               bool sweep, const Point& end) {
    Point from = subpath.Current();
    rx = std::fabs(rx);
    ry = std::fabs(ry);
    if ((from.x == end.x && from.y == end.y)) {
        return;  // an arc to its own start draws nothing
    }
    if (rx == 0 || ry == 0) {
        subpath.LineTo(end);
        return;
    }
    // Endpoint to centre form, correcting radii that are too small.
    double phi = std::fmod(xAxisRotation, 360.0) * std::numbers::pi / 180;
    double cosPhi = std::cos(phi);
    double sinPhi = std::sin(phi);
    double dx = (from.x - end.x) / 2;
    double dy = (from.y - end.y) / 2;
    double x1 = cosPhi * dx + sinPhi * dy;
    double y1 = -sinPhi * dx + cosPhi * dy;
    double lambda = (x1 * x1) / (rx * rx) + (y1 * y1) / (ry * ry);
    if (lambda > 1) {
        double root = std::sqrt(lambda);
        rx *= root;
        ry *= root;
    }
    double numerator = rx * rx * ry * ry - rx * rx * y1 * y1 - ry * ry * x1 * x1;
    double denominator = rx * rx * y1 * y1 + ry * ry * x1 * x1;
    double factor = denominator > 0 ? std::sqrt(std::max(0.0, numerator / denominator)) : 0;
    if (largeArc == sweep) {
        factor = -factor;
    }
    double cx1 = factor * rx * y1 / ry;
    double cy1 = -factor * ry * x1 / rx;
    double cx = cosPhi * cx1 - sinPhi * cy1 + (from.x + end.x) / 2;
    double cy = sinPhi * cx1 + cosPhi * cy1 + (from.y + end.y) / 2;
    double theta1 = VectorAngle(1, 0, (x1 - cx1) / rx, (y1 - cy1) / ry);
    double delta =
        VectorAngle((x1 - cx1) / rx, (y1 - cy1) / ry, (-x1 - cx1) / rx, (-y1 - cy1) / ry);
    if (!sweep && delta > 0) {
        delta -= 2 * std::numbers::pi;
    } else if (sweep && delta < 0) {
        delta += 2 * std::numbers::pi;
    }
    if (!std::isfinite(cx) || !std::isfinite(cy) || !std::isfinite(delta)) {
        subpath.LineTo(end);
        return;
    }
    // At most four pieces: |delta| is at most a full turn.
    int count = static_cast<int>(std::ceil(std::fabs(delta) / (std::numbers::pi / 2) - 1e-9));
    count = std::clamp(count, 1, 4);
    double step = delta / count;
    double handle = 4.0 / 3 * std::tan(step / 4);
    auto onEllipse = [&](double t) {
        return Point{cx + rx * std::cos(t) * cosPhi - ry * std::sin(t) * sinPhi,
                     cy + rx * std::cos(t) * sinPhi + ry * std::sin(t) * cosPhi};
    };
    auto derivative = [&](double t) {
        return Point{-rx * std::sin(t) * cosPhi - ry * std::cos(t) * sinPhi,
                     -rx * std::sin(t) * sinPhi + ry * std::cos(t) * cosPhi};
    };
    double t = theta1;
    for (int i = 0; i < count; ++i) {
        double next = t + step;
        Point p0 = onEllipse(t);
        Point p3 = i == count - 1 ? end : onEllipse(next);
        Point d0 = derivative(t);
        Point d3 = derivative(next);
        subpath.CurveTo({p0.x + handle * d0.x, p0.y + handle * d0.y},
                        {p3.x - handle * d3.x, p3.y - handle * d3.y}, p3);
        t = next;
    }
}

namespace {

bool NearlyEqual(const Point& a, const Point& b) {
    double tolerance = 1e-9 * std::max({1.0, std::fabs(a.x), std::fabs(a.y)});
    return std::fabs(a.x - b.x) <= tolerance && std::fabs(a.y - b.y) <= tolerance;
}

// A smooth point has its two direction points on one line through it, on opposite sides.
bool IsCorner(const document::Segment& s) {
    if (NearlyEqual(s.in, s.anchor) || NearlyEqual(s.out, s.anchor)) {
        return true;
    }
    double ix = s.anchor.x - s.in.x, iy = s.anchor.y - s.in.y;
    double ox = s.out.x - s.anchor.x, oy = s.out.y - s.anchor.y;
    double cross = ix * oy - iy * ox;
    double dot = ix * ox + iy * oy;
    double lengths = std::hypot(ix, iy) * std::hypot(ox, oy);
    return dot <= 0 || std::fabs(cross) > 1e-6 * lengths;
}

}  // namespace

document::PathGeometry ToPathGeometry(const Subpath& subpath, const Affine& toModel) {
    document::PathGeometry geometry;
    geometry.closed = subpath.closed;
    auto& segments = geometry.segments;
    Point start = toModel.Apply(subpath.start);
    segments.push_back({start, start, start, true});
    for (const auto& piece : subpath.pieces) {
        Point end = toModel.Apply(piece.end);
        segments.back().out = toModel.Apply(piece.control1);
        segments.push_back({end, toModel.Apply(piece.control2), end, true});
    }
    if (subpath.closed && subpath.returnsToStart && segments.size() > 1 &&
        NearlyEqual(segments.back().anchor, segments.front().anchor)) {
        segments.front().in = segments.back().in;
        segments.pop_back();
    }
    for (auto& segment : segments) {
        segment.corner = IsCorner(segment);
    }
    return geometry;
}

}  // namespace zm::host::svg
