#include <gtest/gtest.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMLayerSuite.h>

#include <string>
#include <vector>

#include "ImportedDocumentFixture.hpp"

namespace zm::test {
namespace {

using Names = std::vector<std::string>;

constexpr uint32_t kSelected = ZM_ART_SELECTED;
constexpr uint32_t kMember = ZM_ART_COMPOUND_MEMBER;

// objects.svg: art of every kind in the layers "Front" and "Back". Unnamed art (compound
// members, the clip group, the plug-in group's result group) reads as "".
class SvgStructureThroughSuitesTest : public ImportedDocumentFixture {
protected:
    void SetUp() override {
        ImportedDocumentFixture::SetUp();
        Import("objects.svg");
    }
};

TEST_F(SvgStructureThroughSuitesTest, AnyArtWithoutCompoundMembersInDocumentOrder) {
    // Pre-order, "Front" first: the clip group before its clipping path and the clipped rect;
    // the plug-in group before its result group and what that holds. The chart and the graph
    // keep no members; what <defs> holds (the symbol, the mesh gradient) is no art here.
    EXPECT_EQ(NamesOf(Match({{ZM_ART_ANY, 0, kMember, 0}})),
              (Names{"Pair", "box", "ring", "caption", "", "pane", "framed", "note", "blend", "",
                     "dot", "stamp", "photo", "linked", "chart", "graph", "meshed", "label"}));
}

TEST_F(SvgStructureThroughSuitesTest, AnEmptyMaskMatchesTheCompoundMembersToo) {
    // The ring's two subpaths follow it as its unnamed members.
    EXPECT_EQ(NamesOf(Match({{ZM_ART_ANY, 0, 0, 0}})),
              (Names{"Pair",  "box",    "ring",  "",      "",       "caption", "",
                     "pane",  "framed", "note",  "blend", "",       "dot",     "stamp",
                     "photo", "linked", "chart", "graph", "meshed", "label"}));
}

TEST_F(SvgStructureThroughSuitesTest, SelectingAGroupThroughTheArtSuiteSelectsWhatItHolds) {
    ZMArtHandle pair = ArtNamed("Pair");
    ASSERT_EQ(art->SetArtUserAttr(pair, kSelected, kSelected), ZM_ERR_NONE);
    // Selected and not a compound member: the group, its rect and the compound path.
    EXPECT_EQ(NamesOf(Match({{ZM_ART_ANY, 0, kSelected | kMember, kSelected}})),
              (Names{"Pair", "box", "ring"}));
    // The members are selected with the ring they belong to.
    uint32_t attributes = 0;
    ZMArtHandle member = FirstChild(ArtNamed("ring"));
    ASSERT_EQ(art->GetArtUserAttr(member, kSelected | kMember, &attributes), ZM_ERR_NONE);
    EXPECT_EQ(attributes, kSelected | kMember);
    ZMMdMemoryHandle matches = nullptr;
    int32_t count = -1;
    ASSERT_EQ(matching->GetSelectedArt(&matches, &count), ZM_ERR_NONE);
    EXPECT_EQ(NamesOf(Read(matches, count)), (Names{"Pair", "box", "ring", "", ""}));
}

TEST_F(SvgStructureThroughSuitesTest, DeselectingAGroupDeselectsWhatItHolds) {
    ZMArtHandle pair = ArtNamed("Pair");
    ASSERT_EQ(art->SetArtUserAttr(pair, kSelected, kSelected), ZM_ERR_NONE);
    ASSERT_EQ(art->SetArtUserAttr(pair, kSelected, 0), ZM_ERR_NONE);
    uint32_t attributes = kSelected;
    ASSERT_EQ(art->GetArtUserAttr(ArtNamed("box"), kSelected, &attributes), ZM_ERR_NONE);
    EXPECT_EQ(attributes, 0u);
    EXPECT_TRUE(Match({{ZM_ART_ANY, 0, kSelected | kMember, kSelected}}).empty());
}

TEST_F(SvgStructureThroughSuitesTest, SelectingOneShapeSelectsNothingElse) {
    ASSERT_EQ(art->SetArtUserAttr(ArtNamed("box"), kSelected, kSelected), ZM_ERR_NONE);
    EXPECT_EQ(NamesOf(Match({{ZM_ART_ANY, 0, kSelected | kMember, kSelected}})), Names{"box"});
}

TEST_F(SvgStructureThroughSuitesTest, TheMemberBitCannotBeSet) {
    ZMArtHandle box = ArtNamed("box");
    EXPECT_EQ(art->SetArtUserAttr(box, kMember, kMember), ZM_ERR_BAD_ARGUMENT);
    uint32_t attributes = 1;
    ASSERT_EQ(art->GetArtUserAttr(box, kMember, &attributes), ZM_ERR_NONE);
    EXPECT_EQ(attributes, 0u);
}

TEST_F(SvgStructureThroughSuitesTest, TextFramesAndForeignObjectsAtOnce) {
    // Point text in each layer, the foreign object between them in document order.
    EXPECT_EQ(NamesOf(Match(
                  {{ZM_ART_TEXT_FRAME, 0, kMember, 0}, {ZM_ART_FOREIGN_OBJECT, 0, kMember, 0}})),
              (Names{"caption", "note", "label"}));
}

TEST_F(SvgStructureThroughSuitesTest, EachElementHasTheTypeOfItsRow) {
    struct Row {
        const char* name;
        ZMArtType type;
    };
    for (const Row& row : {
             Row{"Pair", ZM_ART_GROUP},             // <g>
             Row{"box", ZM_ART_PATH},               // <rect>
             Row{"ring", ZM_ART_COMPOUND_PATH},     // two subpaths
             Row{"caption", ZM_ART_TEXT_FRAME},     // <text>
             Row{"pane", ZM_ART_PATH},              // the clipping rect
             Row{"note", ZM_ART_FOREIGN_OBJECT},    // <foreignObject>
             Row{"blend", ZM_ART_PLUGIN_GROUP},     // zm:plugin
             Row{"dot", ZM_ART_PATH},               // <circle>
             Row{"stamp", ZM_ART_SYMBOL_INSTANCE},  // <use>
             Row{"photo", ZM_ART_RASTER},           // a data: image
             Row{"linked", ZM_ART_PLACED},          // a linked file, missing here
             Row{"chart", ZM_ART_CHART},            // zm:chart
             Row{"graph", ZM_ART_UNKNOWN},          // zm:graph
             Row{"meshed", ZM_ART_MESH},            // a mesh gradient fill
         }) {
        EXPECT_EQ(TypeOf(ArtNamed(row.name)), row.type) << row.name;
    }
}

TEST_F(SvgStructureThroughSuitesTest, OnlyTheGraphIsAGraph) {
    ZMBool isGraph = 0;
    ASSERT_EQ(art->IsArtGraph(ArtNamed("graph"), &isGraph), ZM_ERR_NONE);
    EXPECT_EQ(isGraph, 1);
    for (const char* name : {"chart", "Pair", "box"}) {
        isGraph = 1;
        ASSERT_EQ(art->IsArtGraph(ArtNamed(name), &isGraph), ZM_ERR_NONE);
        EXPECT_EQ(isGraph, 0) << name;
    }
}

TEST_F(SvgStructureThroughSuitesTest, TheTreeReadsThroughParentsChildrenAndSiblings) {
    ZMArtHandle first = nullptr;
    ASSERT_EQ(art->GetFirstArtOfDocument(&first), ZM_ERR_NONE);
    EXPECT_EQ(NameOf(first), "Pair");   // the first art of the topmost layer, "Front"
    EXPECT_EQ(Parent(first), nullptr);  // the layer's own group is not art
    ZMArtHandle box = FirstChild(first);
    EXPECT_EQ(NameOf(box), "box");
    ZMArtHandle ring = Sibling(box);
    EXPECT_EQ(NameOf(ring), "ring");
    EXPECT_EQ(Sibling(ring), nullptr);
    EXPECT_EQ(Parent(ring), first);
    ZMArtHandle prior = nullptr;
    ASSERT_EQ(art->GetArtPriorSibling(ring, &prior), ZM_ERR_NONE);
    EXPECT_EQ(prior, box);
    // The compound path holds one member path per subpath.
    ZMArtHandle member = FirstChild(ring);
    EXPECT_EQ(TypeOf(member), ZM_ART_PATH);
    EXPECT_EQ(Parent(member), ring);
    ASSERT_NE(Sibling(member), nullptr);
    EXPECT_EQ(Sibling(Sibling(member)), nullptr);
    // After the group: the text, then the clip group holding the clipping path, then the art.
    ZMArtHandle caption = Sibling(first);
    EXPECT_EQ(NameOf(caption), "caption");
    ZMArtHandle clipGroup = Sibling(caption);
    EXPECT_EQ(TypeOf(clipGroup), ZM_ART_GROUP);
    EXPECT_EQ(NameOf(FirstChild(clipGroup)), "pane");
    EXPECT_EQ(NameOf(Sibling(FirstChild(clipGroup))), "framed");
    EXPECT_EQ(Sibling(clipGroup), nullptr);  // the end of "Front"
}

TEST_F(SvgStructureThroughSuitesTest, APluginGroupsOneMemberIsItsResultGroup) {
    ZMArtHandle blend = ArtNamed("blend");
    ZMArtHandle result = FirstChild(blend);
    EXPECT_EQ(TypeOf(result), ZM_ART_GROUP);
    EXPECT_EQ(Sibling(result), nullptr);
    EXPECT_EQ(Parent(result), blend);
    ZMArtHandle dot = FirstChild(result);
    EXPECT_EQ(NameOf(dot), "dot");
    EXPECT_EQ(Parent(dot), result);
}

TEST_F(SvgStructureThroughSuitesTest, BoundsAreInPointsWithYUpFromTheBottom) {
    ZMRealRect bounds{};
    // x 20..120 px is 15..90 pt; y 10..60 px down from the top of a 75 pt page is 67.5..30.
    ASSERT_EQ(art->GetArtBounds(ArtNamed("box"), &bounds), ZM_ERR_NONE);
    EXPECT_DOUBLE_EQ(bounds.left, 15);
    EXPECT_DOUBLE_EQ(bounds.top, 67.5);
    EXPECT_DOUBLE_EQ(bounds.right, 90);
    EXPECT_DOUBLE_EQ(bounds.bottom, 30);
    // The group: the box joined with the ring's 0..40 px square (0..30 pt, 75..45 pt).
    ASSERT_EQ(art->GetArtBounds(ArtNamed("Pair"), &bounds), ZM_ERR_NONE);
    EXPECT_DOUBLE_EQ(bounds.left, 0);
    EXPECT_DOUBLE_EQ(bounds.top, 75);
    EXPECT_DOUBLE_EQ(bounds.right, 90);
    EXPECT_DOUBLE_EQ(bounds.bottom, 30);
    // A clip group is as big as its clipping path: 20 px square at the corner, 15 pt.
    ZMArtHandle clipGroup = Parent(ArtNamed("framed"));
    ASSERT_EQ(art->GetArtBounds(clipGroup, &bounds), ZM_ERR_NONE);
    EXPECT_DOUBLE_EQ(bounds.left, 0);
    EXPECT_DOUBLE_EQ(bounds.top, 75);
    EXPECT_DOUBLE_EQ(bounds.right, 15);
    EXPECT_DOUBLE_EQ(bounds.bottom, 60);
    // The foreign object's box: x 10..50 px, y 20..50 px.
    ASSERT_EQ(art->GetArtBounds(ArtNamed("note"), &bounds), ZM_ERR_NONE);
    EXPECT_DOUBLE_EQ(bounds.left, 7.5);
    EXPECT_DOUBLE_EQ(bounds.top, 60);
    EXPECT_DOUBLE_EQ(bounds.right, 37.5);
    EXPECT_DOUBLE_EQ(bounds.bottom, 37.5);
}

TEST_F(SvgStructureThroughSuitesTest, ArtIsNamedByItsLabelElseItsId) {
    ZMArtHandle first = nullptr;
    ASSERT_EQ(art->GetFirstArtOfDocument(&first), ZM_ERR_NONE);
    EXPECT_EQ(NameOf(first), "Pair");             // inkscape:label beats the id "pair"
    EXPECT_EQ(NameOf(FirstChild(first)), "box");  // no label: the id
}

// layers.svg: a stray rect before the first layer, an Inkscape layer holding a nested
// layer, a zm:layer, an empty Inkscape layer without a label, and a stray circle at the end.
class SvgLayersThroughSuitesTest : public ImportedDocumentFixture {
protected:
    void SetUp() override {
        ImportedDocumentFixture::SetUp();
        Acquire(ZM_LAYER_SUITE_NAME, ZM_LAYER_SUITE_VERSION, layers);
        Import("layers.svg");
    }

    std::string Title(ZMLayerHandle layer) {
        ZMUnicodeString title = nullptr;
        EXPECT_EQ(layers->GetLayerTitle(layer, &title), ZM_ERR_NONE);
        std::string text = Text(title);
        EXPECT_EQ(strings->Dispose(title), ZM_ERR_NONE);
        return text;
    }

    ZMLayerHandle Nth(int32_t index) {
        ZMLayerHandle layer = nullptr;
        EXPECT_EQ(layers->GetNthLayer(index, &layer), ZM_ERR_NONE);
        return layer;
    }

    const ZMLayerSuite* layers = nullptr;
};

TEST_F(SvgLayersThroughSuitesTest, LayerTitlesInFileOrderWithTheImplicitLayerFirst) {
    int32_t count = 0;
    ASSERT_EQ(layers->CountLayers(&count), ZM_ERR_NONE);
    // Stray art makes "Layer 1" where it first appears; zm:layer beats inkscape:label; a
    // layer without a label takes its id. The nested layer is no layer of its own.
    ASSERT_EQ(count, 4);
    Names titles;
    for (int32_t i = 0; i < count; ++i) {
        titles.push_back(Title(Nth(i)));
    }
    EXPECT_EQ(titles, (Names{"Layer 1", "Background", "Top", "layer3"}));
}

TEST_F(SvgLayersThroughSuitesTest, TheLayerListWalksTheSameLayers) {
    ZMLayerList list = nullptr;
    ASSERT_EQ(layerLists->GetCurrentLayerList(&list), ZM_ERR_NONE);
    int32_t count = 0;
    ASSERT_EQ(layerLists->CountLayersOfList(list, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 4);
    ZMLayerHandle layer = nullptr;
    ASSERT_EQ(layerLists->GetFirstLayerOfList(list, &layer), ZM_ERR_NONE);
    for (int32_t i = 0; i < 4; ++i) {
        EXPECT_EQ(layer, Nth(i)) << i;
        ASSERT_EQ(layerLists->GetNextLayerOfList(list, layer, &layer), ZM_ERR_NONE);
    }
    EXPECT_EQ(layer, nullptr);
}

TEST_F(SvgLayersThroughSuitesTest, StrayArtFromBothEndsOfTheFileSharesLayerOne) {
    ZMArtHandle first = nullptr;
    ASSERT_EQ(layers->GetFirstArtOfLayer(Nth(0), &first), ZM_ERR_NONE);
    EXPECT_EQ(NameOf(first), "stray1");
    EXPECT_EQ(NameOf(Sibling(first)), "stray2");
    EXPECT_EQ(Sibling(Sibling(first)), nullptr);
}

TEST_F(SvgLayersThroughSuitesTest, ANestedLayerIsAGroupNamedByItsLabel) {
    ZMArtHandle backdrop = nullptr;
    ASSERT_EQ(layers->GetFirstArtOfLayer(Nth(1), &backdrop), ZM_ERR_NONE);
    EXPECT_EQ(NameOf(backdrop), "Backdrop");  // r1's inkscape:label
    ZMArtHandle nested = Sibling(backdrop);
    EXPECT_EQ(TypeOf(nested), ZM_ART_GROUP);
    EXPECT_EQ(NameOf(nested), "Nested");
    EXPECT_EQ(NameOf(FirstChild(nested)), "c1");
}

TEST_F(SvgLayersThroughSuitesTest, AnEmptyLayerHasNoFirstArt) {
    ZMArtHandle first = ForeignHandle<ZMArtHandle>();
    ASSERT_EQ(layers->GetFirstArtOfLayer(Nth(3), &first), ZM_ERR_NONE);
    EXPECT_EQ(first, nullptr);
}

TEST_F(SvgLayersThroughSuitesTest, NewArtGoesToTheTopmostLayer) {
    ZMLayerHandle current = nullptr;
    ASSERT_EQ(layers->GetCurrentLayer(&current), ZM_ERR_NONE);
    EXPECT_EQ(current, Nth(0));
}

}  // namespace
}  // namespace zm::test
