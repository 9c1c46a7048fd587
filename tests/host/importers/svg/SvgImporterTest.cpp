#include "SvgFixtures.hpp"

#include <document/Art.hpp>
#include <importers/DocumentImport.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace zm::test {
namespace {

using host::DocumentOpenError;
using host::ImportSvgText;
using host::document::Art;
using host::document::Document;
using host::document::kArtCompoundMember;
using host::document::kArtSelected;
using host::document::Point;

std::vector<std::string> ChildIds(const Art& art) {
    std::vector<std::string> ids;
    for (const auto& child : art.Children()) {
        ids.push_back(child->Id());
    }
    return ids;
}

// Length of a cubic flattened into many straight pieces.
double CubicLength(Point p0, Point p1, Point p2, Point p3) {
    double length = 0;
    Point previous = p0;
    for (int i = 1; i <= 1000; ++i) {
        double t = i / 1000.0, u = 1 - t;
        Point p{u * u * u * p0.x + 3 * u * u * t * p1.x + 3 * u * t * t * p2.x + t * t * t * p3.x,
                u * u * u * p0.y + 3 * u * u * t * p1.y + 3 * u * t * t * p2.y + t * t * t * p3.y};
        length += std::hypot(p.x - previous.x, p.y - previous.y);
        previous = p;
    }
    return length;
}

class SvgShapesImportTest : public ::testing::Test {
protected:
    std::unique_ptr<Document> document = OpenSvgFixture("shapes.svg");
};

TEST_F(SvgShapesImportTest, TheSizeIsInPoints) {
    EXPECT_EQ(document->setup.width, 150);  // 200 px * 0.75
    EXPECT_EQ(document->setup.height, 75);  // 100 px * 0.75
}

TEST_F(SvgShapesImportTest, ArtOutsideLayersGoesIntoLayerOne) {
    ASSERT_EQ(document->layers.size(), 1u);
    EXPECT_EQ(document->layers[0]->name, "Layer 1");
    EXPECT_EQ(ChildIds(*document->layers[0]->root),
              (std::vector<std::string>{"rect", "rounded", "circle", "ellipse", "line", "polyline",
                                        "polygon", "triangle", "ring", "open"}));
}

TEST_F(SvgShapesImportTest, ARectsCornersInModelPoints) {
    // x 10..50 px is 7.5..37.5 pt; y 10..30 px from the top of a 75 pt page is 67.5..52.5.
    const Art& rect = ArtById(*document, "rect");
    EXPECT_EQ(TypeCode(rect), 2);
    ASSERT_EQ(rect.path.segments.size(), 4u);
    EXPECT_TRUE(rect.path.closed);
    EXPECT_EQ(rect.path.segments[0].anchor, (Point{7.5, 67.5}));
    EXPECT_EQ(rect.path.segments[1].anchor, (Point{37.5, 67.5}));
    EXPECT_EQ(rect.path.segments[2].anchor, (Point{37.5, 52.5}));
    EXPECT_EQ(rect.path.segments[3].anchor, (Point{7.5, 52.5}));
}

TEST_F(SvgShapesImportTest, AnchorCountsPerShape) {
    struct Expected {
        const char* id;
        std::size_t segments;
        bool closed;
    };
    for (const Expected& e :
         {Expected{"rounded", 8, true}, Expected{"circle", 4, true}, Expected{"ellipse", 4, true},
          Expected{"line", 2, false}, Expected{"polyline", 4, false}, Expected{"polygon", 3, true},
          Expected{"triangle", 3, true}, Expected{"open", 2, false}}) {
        const Art& art = ArtById(*document, e.id);
        EXPECT_EQ(TypeCode(art), 2) << e.id;
        EXPECT_EQ(art.path.segments.size(), e.segments) << e.id;
        EXPECT_EQ(art.path.closed, e.closed) << e.id;
    }
}

TEST_F(SvgShapesImportTest, APathWithTwoSubpathsIsACompoundPathOfTwoMembers) {
    const Art& ring = ArtById(*document, "ring");
    EXPECT_EQ(TypeCode(ring), 3);
    ASSERT_EQ(ring.Children().size(), 2u);
    for (const auto& member : ring.Children()) {
        EXPECT_EQ(TypeCode(*member), 2);
        EXPECT_EQ(member->path.segments.size(), 4u);
        EXPECT_TRUE(member->path.closed);
        EXPECT_TRUE(member->Attributes() & kArtCompoundMember);
        EXPECT_TRUE(member->style.evenOdd);  // members carry the compound's style
        EXPECT_TRUE(member->style.fillPaint);
    }
}

TEST_F(SvgShapesImportTest, CurveHandlesAreMappedLikeAnchors) {
    // The first control point (10,10) px is (7.5, 75 - 7.5) pt.
    const Art& open = ArtById(*document, "open");
    EXPECT_EQ(open.path.segments[0].out, (Point{7.5, 67.5}));
}

TEST_F(SvgShapesImportTest, ACirclesArcsMeasureItsCircumference) {
    // r = 20 px = 15 pt: circumference 2 * pi * 15. The four-cubic circle is within 0.03 %.
    const auto& segments = ArtById(*document, "circle").path.segments;
    double length = 0;
    for (std::size_t i = 0; i < segments.size(); ++i) {
        const auto& from = segments[i];
        const auto& to = segments[(i + 1) % segments.size()];
        length += CubicLength(from.anchor, from.out, to.in, to.anchor);
    }
    EXPECT_NEAR(length, 2 * M_PI * 15, 2 * M_PI * 15 * 3e-4);
}

TEST(SvgImportSizeTest, AViewBoxScalesUserUnits) {
    auto document = OpenSvgFixture("viewbox.svg");
    EXPECT_DOUBLE_EQ(document->setup.width, 144);  // 2 in
    EXPECT_DOUBLE_EQ(document->setup.height, 72);  // 1 in
    EXPECT_EQ(document->rulerUnits, host::document::RulerUnits::Inches);
    // One user unit is 0.72 pt: x 100..150 is 72..108; y 50..75 from the top is 36..18.
    const auto& box = ArtById(*document, "box").path.segments;
    EXPECT_NEAR(box[0].anchor.x, 72, 1e-9);
    EXPECT_NEAR(box[0].anchor.y, 36, 1e-9);
    EXPECT_NEAR(box[2].anchor.x, 108, 1e-9);
    EXPECT_NEAR(box[2].anchor.y, 18, 1e-9);
}

TEST(SvgImportSizeTest, NestedTransformsApplyInnermostFirst) {
    // scale(2) makes the rect 0..20, the group moves it to x 10..30 user units: 7.2..21.6 pt;
    // y 0..20 user units from the top of 72 pt: 72..57.6.
    auto document = OpenSvgFixture("viewbox.svg");
    const auto& moved = ArtById(*document, "moved").path.segments;
    EXPECT_NEAR(moved[0].anchor.x, 7.2, 1e-9);
    EXPECT_NEAR(moved[0].anchor.y, 72, 1e-9);
    EXPECT_NEAR(moved[2].anchor.x, 21.6, 1e-9);
    EXPECT_NEAR(moved[2].anchor.y, 57.6, 1e-9);
}

TEST(SvgImportSizeTest, SizeDefaultsFollowTheBrowser) {
    const char* ns = "xmlns=\"http://www.w3.org/2000/svg\"";
    auto none = ImportSvgText(std::string("<svg ") + ns + "/>", "none.svg");
    EXPECT_EQ(none->setup.width, 225);     // 300 px
    EXPECT_EQ(none->setup.height, 112.5);  // 150 px
    auto boxOnly = ImportSvgText(std::string("<svg ") + ns + " viewBox='0 0 400 200'/>", "v.svg");
    EXPECT_EQ(boxOnly->setup.width, 300);  // the viewBox's 400 px
    EXPECT_EQ(boxOnly->setup.height, 150);
    auto widthOnly =
        ImportSvgText(std::string("<svg ") + ns + " width='100' viewBox='0 0 50 25'/>", "w.svg");
    EXPECT_EQ(widthOnly->setup.height, 37.5);  // 100 * 25 / 50 = 50 px
    auto percent = ImportSvgText(
        std::string("<svg ") + ns + " width='100%' height='100%' viewBox='0 0 40 20'/>", "p.svg");
    EXPECT_EQ(percent->setup.width, 30);  // percentages fall back to the viewBox: 40 px
}

TEST(SvgImportLayersTest, LayersInDocumentOrderWithTheImplicitLayerWhereFirstNeeded) {
    auto document = OpenSvgFixture("layers.svg");
    std::vector<std::string> names;
    for (const auto& layer : document->layers) {
        names.push_back(layer->name);
    }
    // zm:layer names its layer before inkscape:label; a layer without a label takes its id.
    EXPECT_EQ(names, (std::vector<std::string>{"Layer 1", "Background", "Top", "layer3"}));
    EXPECT_EQ(ChildIds(*document->layers[0]->root), (std::vector<std::string>{"stray1", "stray2"}));
    EXPECT_EQ(ChildIds(*document->layers[1]->root), (std::vector<std::string>{"r1", "nested"}));
}

TEST(SvgImportLayersTest, ANestedLayerIsAnOrdinaryGroup) {
    auto document = OpenSvgFixture("layers.svg");
    const Art& nested = ArtById(*document, "nested");
    EXPECT_EQ(TypeCode(nested), 1);
    EXPECT_EQ(nested.name, "Nested");
    EXPECT_EQ(ChildIds(nested), (std::vector<std::string>{"c1"}));
}

TEST(SvgImportLayersTest, ArtIsNamedByItsLabelElseItsId) {
    auto document = OpenSvgFixture("layers.svg");
    EXPECT_EQ(ArtById(*document, "r1").name, "Backdrop");
    EXPECT_EQ(ArtById(*document, "c1").name, "c1");
}

TEST(SvgImportLayersTest, SelectingAGroupSelectsWhatItHolds) {
    auto document = OpenSvgFixture("layers.svg");
    ArtById(*document, "layer1").SetSelected(true);
    for (const char* id : {"r1", "nested", "c1"}) {
        EXPECT_TRUE(ArtById(*document, id).Attributes() & kArtSelected) << id;
    }
    EXPECT_FALSE(ArtById(*document, "stray1").IsSelected());
    EXPECT_FALSE(ArtById(*document, "p1").IsSelected());
}

TEST(SvgImportErrorTest, NotWellFormedXmlNamesFileAndPosition) {
    auto file = SvgFixture("truncated.svg");
    try {
        host::ImportSvgFile(file);
        FAIL() << "no error";
    } catch (const DocumentOpenError& error) {
        std::string what = error.what();
        EXPECT_EQ(what.rfind(file.string() + ": not well-formed XML: ", 0), 0u) << what;
        EXPECT_NE(what.find("line 2"), std::string::npos) << what;  // the cut is on line 2
        EXPECT_EQ(what.find('\n'), std::string::npos);
    }
}

TEST(SvgImportErrorTest, AnotherRootElementIsNamed) {
    auto file = SvgFixture("not-svg.svg");
    try {
        host::ImportSvgFile(file);
        FAIL() << "no error";
    } catch (const DocumentOpenError& error) {
        EXPECT_EQ(std::string(error.what()),
                  file.string() + ": the root element is <html>, not <svg>");
    }
}

TEST(SvgImportErrorTest, AnUnreadableFileIsAnOpenError) {
    EXPECT_THROW(host::ImportSvgFile(SvgFixture("no-such-file.svg")), DocumentOpenError);
}

TEST(SvgImportErrorTest, ThroughImportDocumentToo) {
    EXPECT_THROW(host::ImportDocument(SvgFixture("not-svg.svg")), DocumentOpenError);
    EXPECT_NO_THROW(host::ImportDocument(SvgFixture("shapes.svg")));
}

std::string Nested(int depth) {
    std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\">";
    for (int i = 0; i < depth; ++i) text += "<g>";
    text += "<rect id=\"deep\" width=\"1\" height=\"1\"/>";
    for (int i = 0; i < depth; ++i) text += "</g>";
    return text + "</svg>";
}

TEST(SvgImportErrorTest, DeepNestingIsRefusedWithAClearReason) {
    try {
        ImportSvgText(Nested(100000), "deep.svg");
        FAIL() << "no error";
    } catch (const DocumentOpenError& error) {
        EXPECT_EQ(std::string(error.what()), "deep.svg: elements nested too deeply");
    }
}

TEST(SvgImportErrorTest, NestingWithinTheLimitOpens) {
    auto document = ImportSvgText(Nested(200), "deep.svg");
    EXPECT_EQ(TypeCode(ArtById(*document, "deep")), 2);
}

TEST(SvgImportErrorTest, CyclicUsesAreDroppedNotFollowedForever) {
    auto document = OpenSvgFixture("cyclic-use.svg");
    const Art& start = ArtById(*document, "start");
    EXPECT_EQ(TypeCode(start), 13);
    // a's definition holds b's instance; b's definition drops its use of a.
    ASSERT_EQ(document->symbols.size(), 2u);
    EXPECT_EQ(document->symbols[0]->id, "b");
    EXPECT_TRUE(document->symbols[0]->definition->Children().empty());
    EXPECT_EQ(document->symbols[1]->id, "a");
    EXPECT_EQ(start.symbol, document->symbols[1].get());
    // A use inside the group it shows is dropped.
    EXPECT_TRUE(ArtById(*document, "self").Children().empty());
}

void ExpectFinite(const Art& art) {
    for (const auto& segment : art.path.segments) {
        for (const Point& p : {segment.anchor, segment.in, segment.out}) {
            EXPECT_TRUE(std::isfinite(p.x) && std::isfinite(p.y)) << art.Id();
        }
    }
    if (art.bounds) {
        EXPECT_TRUE(std::isfinite(art.bounds->left) && std::isfinite(art.bounds->top) &&
                    std::isfinite(art.bounds->right) && std::isfinite(art.bounds->bottom))
            << art.Id();
    }
    EXPECT_TRUE(std::isfinite(art.style.strokeWidth));
    for (const auto& child : art.Children()) {
        ExpectFinite(*child);
    }
}

TEST(SvgImportErrorTest, AbsurdNumbersOpenWithFiniteGeometry) {
    auto document = OpenSvgFixture("absurd-numbers.svg");
    // width 1e308 px is pinned to 1e9 px; the height "NaN" is ignored, leaving 150 px.
    EXPECT_EQ(document->setup.width, 7.5e8);
    EXPECT_EQ(document->setup.height, 112.5);
    ASSERT_EQ(document->layers.size(), 1u);
    ExpectFinite(*document->layers[0]->root);
    // A rect of no size still has its four corners.
    EXPECT_EQ(ArtById(*document, "rect").path.segments.size(), 4u);
    EXPECT_EQ(ArtById(*document, "text").blend.opacity, 1);  // "NaN" ignored
}

TEST(SvgImportErrorTest, AbsurdPlacementsOpenWithFiniteBounds) {
    auto document = OpenSvgFixture("absurd-placement.svg");
    ASSERT_EQ(document->layers.size(), 1u);
    ExpectFinite(*document->layers[0]->root);
    EXPECT_TRUE(ArtById(*document, "use").bounds);  // ExpectFinite checked their figures
    EXPECT_TRUE(ArtById(*document, "text").bounds);
    ASSERT_EQ(document->patterns.size(), 1u);
    ASSERT_TRUE(document->patterns[0]->art);
    ExpectFinite(*document->patterns[0]->art);
}

TEST(SvgImportErrorTest, AHugePolylineKeepsEveryPoint) {
    std::string points;
    for (int i = 0; i < 100000; ++i)
        points += std::to_string(i % 500) + "," + std::to_string(i / 500) + " ";
    auto document =
        ImportSvgText("<svg xmlns=\"http://www.w3.org/2000/svg\"><polyline id=\"p\" points=\"" +
                          points + "\"/></svg>",
                      "big.svg");
    EXPECT_EQ(ArtById(*document, "p").path.segments.size(), 100000u);
}

}  // namespace
}  // namespace zm::test
