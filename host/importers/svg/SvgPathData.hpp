#pragma once

#include "document/Geometry.hpp"
#include "importers/svg/SvgTransform.hpp"

#include <string_view>
#include <vector>

namespace zm::host::svg {

// One piece of a subpath from the previous on-curve point to `end`. Straight pieces keep
// their control points on their ends, so a straight segment's direction points sit on its
// anchors.
struct CurvePiece {
    document::Point control1;
    document::Point control2;
    document::Point end;
};

// A subpath in SVG user units: its first point and the pieces after it. Every on-curve point
// (start and each piece's end) becomes an anchor.
struct Subpath {
    document::Point start;
    std::vector<CurvePiece> pieces;
    bool closed = false;
    // The last piece comes back to the start (path data's closepath, a circle's last arc):
    // an end there is the start point again, not an anchor of its own. Outlines whose
    // corners merely coincide (a rectangle of no size) keep every corner.
    bool returnsToStart = false;

    void LineTo(const document::Point& p);
    void CurveTo(const document::Point& c1, const document::Point& c2, const document::Point& p);
    const document::Point& Current() const { return pieces.empty() ? start : pieces.back().end; }
};

// Parses path data ("M10 10 h 20 a5 5 0 0 1 5 5 z ..."): absolute and relative commands,
// implicit repeats, smooth curves, quadratic curves raised to cubics and elliptical arcs
// turned into cubic pieces of at most 90 degrees each. As a browser does, everything before
// the first error is kept. A moveto followed by nothing draws nothing and is left out.
std::vector<Subpath> ParsePathData(std::string_view data);

// Appends an elliptical arc as SVG's arc command describes it (endpoint form), as cubic
// pieces of at most 90 degrees.
void AppendArc(Subpath& subpath, double rx, double ry, double xAxisRotation, bool largeArc,
               bool sweep, const document::Point& end);

// The anchors of a subpath after mapping it through `toModel`. A closed subpath that returns
// to its start and whose last point lands on its first counts that point once.
document::PathGeometry ToPathGeometry(const Subpath& subpath, const Affine& toModel);

}  // namespace zm::host::svg
