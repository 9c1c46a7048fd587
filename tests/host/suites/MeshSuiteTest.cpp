#include <gtest/gtest.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMMeshSuite.h>

#include <memory>
#include <vector>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::Art;
using document::ArtType;
using document::Color;
using document::ColorKind;

ZMArtHandle H(const Art& art) { return reinterpret_cast<ZMArtHandle>(const_cast<Art*>(&art)); }

constexpr ZMErr kStop = ZM_FOUR_CHAR('S', 'T', 'O', 'P');

// What the callback saw, and after how many colours it answers kStop (0: never).
struct Seen {
    std::vector<ZMColor> colors;
    size_t stopAfter = 0;
};

ZMErr ZM_API Collect(void* data, const ZMColor* color) {
    auto* seen = static_cast<Seen*>(data);
    seen->colors.push_back(*color);
    return seen->colors.size() == seen->stopAfter ? kStop : ZM_ERR_NONE;
}

// A mesh of three colours: RGB red, CMYK, gray.
class MeshSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_MESH_SUITE_NAME, ZM_MESH_SUITE_VERSION, meshes);
        auto built = std::make_unique<document::Document>();
        Art* layer = zm::test::AddLayer(*built, "Layer 1").root.get();
        mesh = &zm::test::AddArt(*layer, ArtType::Mesh, "mesh");
        Color cmyk;
        cmyk.kind = ColorKind::Cmyk;
        cmyk.cmyk = {0, 1, 1, 0};
        Color gray;
        gray.kind = ColorKind::Gray;
        gray.gray = 0.5;
        mesh->meshColors = {Color::Rgb(1, 0, 0), cmyk, gray};
        path = &zm::test::AddRectangle(*layer, 0, 0, 1, 1, "path");
        runtime.documents.Add(std::move(built));
    }

    const ZMMeshSuite* meshes = nullptr;
    Art* mesh = nullptr;
    Art* path = nullptr;
};

TEST_F(MeshSuiteTest, TheColoursAreCounted) {
    int32_t count = -1;
    ASSERT_EQ(meshes->CountMeshColors(H(*mesh), &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 3);
}

TEST_F(MeshSuiteTest, TheCallbackSeesEveryColourInOrder) {
    Seen seen;
    ASSERT_EQ(meshes->ForEachMeshColor(H(*mesh), Collect, &seen), ZM_ERR_NONE);
    ASSERT_EQ(seen.colors.size(), 3u);
    EXPECT_EQ(seen.colors[0].kind, ZM_COLOR_THREE);
    EXPECT_EQ(seen.colors[0].c.three.red, 1);
    EXPECT_EQ(seen.colors[1].kind, ZM_COLOR_FOUR);
    EXPECT_EQ(seen.colors[1].c.four.magenta, 1);
    EXPECT_EQ(seen.colors[2].kind, ZM_COLOR_GRAY);
    EXPECT_EQ(seen.colors[2].c.gray.gray, 0.5);
}

TEST_F(MeshSuiteTest, ANonZeroCallbackResultStopsTheEnumerationAndIsItsResult) {
    Seen seen;
    seen.stopAfter = 2;
    EXPECT_EQ(meshes->ForEachMeshColor(H(*mesh), Collect, &seen), kStop);
    EXPECT_EQ(seen.colors.size(), 2u);  // the gray colour is never offered
}

TEST_F(MeshSuiteTest, ArtThatIsNoMeshIsOfTheWrongType) {
    int32_t count = -1;
    Seen seen;
    EXPECT_EQ(meshes->CountMeshColors(H(*path), &count), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(meshes->ForEachMeshColor(H(*path), Collect, &seen), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_TRUE(seen.colors.empty());
}

TEST_F(MeshSuiteTest, BadArgumentsAndMissingDocumentsAreReported) {
    int32_t count = -1;
    EXPECT_EQ(meshes->ForEachMeshColor(H(*mesh), nullptr, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(meshes->CountMeshColors(H(*mesh), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(meshes->CountMeshColors(nullptr, &count), ZM_ERR_BAD_ARGUMENT);
    ZMArtHandle handle = H(*mesh);
    runtime.documents.CloseCurrent();
    EXPECT_EQ(meshes->CountMeshColors(handle, &count), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
