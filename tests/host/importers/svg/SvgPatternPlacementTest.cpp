#include "SvgFixtures.hpp"

#include <document/ArtBounds.hpp>

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace zm::test {
namespace {

using host::document::Document;
using host::document::Rect;

class SvgPatternPlacementTest : public ::testing::Test {
protected:
    std::unique_ptr<Document> document = OpenSvgFixture("bounding-box-units.svg");

    std::optional<Rect> ContentBounds(const std::string& id) {
        for (const auto& pattern : document->patterns) {
            if (pattern->id == id && pattern->art) {
                return host::document::ArtBounds(*pattern->art);
            }
        }
        return std::nullopt;
    }
};

TEST_F(SvgPatternPlacementTest, ContentInBoundingBoxUnitsScalesWithTheFirstArtPaintedWithIt) {
    // "checked" (x 10..50, y 10..90 px) paints first: the quarter-unit rect is 10 x 20 px at
    // the tile's corner (10, 10), so x 10..20 px and y 10..30 px: 7.5..15 pt across and
    // 75 - 7.5 = 67.5 down to 75 - 22.5 = 52.5. The larger rect painting later changes nothing.
    ExpectBoundsNear(ContentBounds("checks"), Rect{7.5, 67.5, 15, 52.5});
}

TEST_F(SvgPatternPlacementTest, TheTileCornerIsAFractionOfTheBoxByDefault) {
    // Box x 60..100, y 0..40 px: the tile starts at 60 + 0.5 * 40 = 80 and 0 + 25% of 40 = 10.
    // The 4 px rect spans x 80..84, y 10..14 px: 60..63 pt, 67.5 down to 64.5.
    ExpectBoundsNear(ContentBounds("tiles"), Rect{60, 67.5, 63, 64.5});
}

TEST_F(SvgPatternPlacementTest, AViewBoxFitsTheContentIntoTheTile) {
    // Box 40 x 20 px at (0, 60): the tile is 20 x 10 px. The 10-unit viewBox meets it at scale
    // 1, centred: 5 px in. The rect spans x 5..15, y 60..70 px: 3.75..11.25 pt, 30 down to
    // 22.5.
    ExpectBoundsNear(ContentBounds("viewed"), Rect{3.75, 30, 11.25, 22.5});
}

TEST_F(SvgPatternPlacementTest, UnitsComeThroughHrefAndTheArtsTransformApplies) {
    // The pattern takes checks' content units, size and content. The box is 20 x 40 user
    // units: the rect is 5 x 10 at (0, 0), moved by (50, 50): x 50..55, y 50..60 px, so
    // 37.5..41.25 pt and 37.5 down to 30.
    ExpectBoundsNear(ContentBounds("inherits"), Rect{37.5, 37.5, 41.25, 30});
}

}  // namespace
}  // namespace zm::test
