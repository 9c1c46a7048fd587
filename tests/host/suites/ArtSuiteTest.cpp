#include <gtest/gtest.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMUnicodeStringSuite.h>

#include <memory>
#include <string>
#include <suites/UnicodeStringHandle.hpp>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::Art;
using document::ArtType;
using zm::test::AddArt;
using zm::test::AddLayer;
using zm::test::AddPath;
using zm::test::AddRectangle;

ZMArtHandle H(const Art& art) { return reinterpret_cast<ZMArtHandle>(const_cast<Art*>(&art)); }

// Layer 1: group g { rectangle p1, compound path c { c1, c2 } }, text frame t
// Layer 2: plug-in group b { result group { path b1 } }, path p2
class ArtSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_ART_SUITE_NAME, ZM_ART_SUITE_VERSION, art);
        Acquire(ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION, strings);
        auto built = std::make_unique<document::Document>();
        document::Layer& first = AddLayer(*built, "Layer 1");
        g = &AddArt(*first.root, ArtType::Group, "g");
        p1 = &AddRectangle(*g, 10, 20, 100, 50, "p1");
        c = &AddArt(*g, ArtType::CompoundPath, "c");
        c1 = &AddRectangle(*c, 0, 0, 10, 10, "c1");
        c2 = &AddRectangle(*c, 2, 2, 4, 4, "c2");
        t = &AddArt(*first.root, ArtType::TextFrame, "t");
        t->bounds = document::Rect{5, 300, 200, 280};
        document::Layer& second = AddLayer(*built, "Layer 2");
        b = &AddArt(*second.root, ArtType::PluginGroup, "b");
        b->pluginName = "Quorvel Path Blends";
        b1 = &AddRectangle(b->ResultGroup(), 0, 0, 1, 1, "b1");
        p2 = &AddRectangle(*second.root, 0, 0, 1, 1, "p2");
        doc = &runtime.documents.Add(std::move(built));
    }

    int16_t Type(const Art& object) {
        ZMArtType type = -1;
        EXPECT_EQ(art->GetArtType(H(object), &type), ZM_ERR_NONE);
        return type;
    }

    ZMArtHandle Parent(const Art& object) {
        ZMArtHandle parent = ForeignHandle();
        EXPECT_EQ(art->GetArtParent(H(object), &parent), ZM_ERR_NONE);
        return parent;
    }

    ZMArtHandle FirstChild(const Art& object) {
        ZMArtHandle child = ForeignHandle();
        EXPECT_EQ(art->GetArtFirstChild(H(object), &child), ZM_ERR_NONE);
        return child;
    }

    ZMArtHandle Next(const Art& object) {
        ZMArtHandle sibling = ForeignHandle();
        EXPECT_EQ(art->GetArtSibling(H(object), &sibling), ZM_ERR_NONE);
        return sibling;
    }

    ZMArtHandle Prior(const Art& object) {
        ZMArtHandle sibling = ForeignHandle();
        EXPECT_EQ(art->GetArtPriorSibling(H(object), &sibling), ZM_ERR_NONE);
        return sibling;
    }

    uint32_t Attributes(const Art& object, uint32_t mask = 0xFFFFFFFFu) {
        uint32_t attributes = 0xDEADu;
        EXPECT_EQ(art->GetArtUserAttr(H(object), mask, &attributes), ZM_ERR_NONE);
        return attributes;
    }

    ZMRealRect Bounds(const Art& object) {
        ZMRealRect bounds{-1, -1, -1, -1};
        EXPECT_EQ(art->GetArtBounds(H(object), &bounds), ZM_ERR_NONE);
        return bounds;
    }

    static ZMArtHandle ForeignHandle() { return zm::test::ForeignHandle<ZMArtHandle>(); }

    const ZMArtSuite* art = nullptr;
    const ZMUnicodeStringSuite* strings = nullptr;
    document::Document* doc = nullptr;
    Art* g = nullptr;
    Art* p1 = nullptr;
    Art* c = nullptr;
    Art* c1 = nullptr;
    Art* c2 = nullptr;
    Art* t = nullptr;
    Art* b = nullptr;
    Art* b1 = nullptr;
    Art* p2 = nullptr;
};

void ExpectRect(const ZMRealRect& actual, double left, double top, double right, double bottom) {
    EXPECT_DOUBLE_EQ(actual.left, left);
    EXPECT_DOUBLE_EQ(actual.top, top);
    EXPECT_DOUBLE_EQ(actual.right, right);
    EXPECT_DOUBLE_EQ(actual.bottom, bottom);
}

TEST_F(ArtSuiteTest, TypesAreTheHostsArtTypeCodes) {
    EXPECT_EQ(Type(*g), ZM_ART_GROUP);
    EXPECT_EQ(Type(*g), 1);
    EXPECT_EQ(Type(*p1), 2);
    EXPECT_EQ(Type(*c), 3);
    EXPECT_EQ(Type(*t), 12);
    EXPECT_EQ(Type(*b), 10);
}

TEST_F(ArtSuiteTest, ArtAtTheTopOfALayerHasNoParent) {
    EXPECT_EQ(Parent(*g), nullptr);  // the layer's own group is not art
    EXPECT_EQ(Parent(*b), nullptr);
    EXPECT_EQ(Parent(*p1), H(*g));
    EXPECT_EQ(Parent(*c2), H(*c));
}

TEST_F(ArtSuiteTest, MembersAreWalkedFromTheFirstChildThroughTheirSiblings) {
    EXPECT_EQ(FirstChild(*g), H(*p1));
    EXPECT_EQ(Next(*p1), H(*c));
    EXPECT_EQ(Next(*c), nullptr);
    EXPECT_EQ(Prior(*c), H(*p1));
    EXPECT_EQ(Prior(*p1), nullptr);
    EXPECT_EQ(FirstChild(*c), H(*c1));
    EXPECT_EQ(FirstChild(*p1), nullptr);  // a path holds nothing
}

TEST_F(ArtSuiteTest, TopLevelArtIsSiblingOnlyWithinItsLayer) {
    EXPECT_EQ(Next(*g), H(*t));
    EXPECT_EQ(Next(*t), nullptr);  // the second layer's art is not reached from the first's
    EXPECT_EQ(Prior(*b), nullptr);
}

TEST_F(ArtSuiteTest, APluginGroupsFirstChildIsItsResultGroup) {
    ZMArtHandle result = FirstChild(*b);
    EXPECT_EQ(result, H(b->ResultGroup()));
    ZMArtHandle made = ForeignHandle();
    ASSERT_EQ(art->GetArtFirstChild(result, &made), ZM_ERR_NONE);
    EXPECT_EQ(made, H(*b1));
    EXPECT_EQ(Parent(*b1), result);
    EXPECT_EQ(Parent(b->ResultGroup()), H(*b));
}

TEST_F(ArtSuiteTest, TheFirstArtOfTheDocumentIsTheFirstArtOfTheTopmostLayerHoldingAny) {
    ZMArtHandle first = ForeignHandle();
    ASSERT_EQ(art->GetFirstArtOfDocument(&first), ZM_ERR_NONE);
    EXPECT_EQ(first, H(*g));
    // An empty layer on top is passed over.
    doc->layers.insert(doc->layers.begin(), std::make_unique<document::Layer>());
    ASSERT_EQ(art->GetFirstArtOfDocument(&first), ZM_ERR_NONE);
    EXPECT_EQ(first, H(*g));
}

TEST_F(ArtSuiteTest, ADocumentWithoutArtHasNoFirstArt) {
    runtime.documents.Add(std::make_unique<document::Document>());
    ZMArtHandle first = ForeignHandle();
    ASSERT_EQ(art->GetFirstArtOfDocument(&first), ZM_ERR_NONE);
    EXPECT_EQ(first, nullptr);
}

TEST_F(ArtSuiteTest, CompoundPathMembersCarryTheMemberBit) {
    EXPECT_EQ(Attributes(*c1), ZM_ART_COMPOUND_MEMBER);
    EXPECT_EQ(Attributes(*c1, ZM_ART_SELECTED), 0u);  // bits outside the mask read 0
    EXPECT_EQ(Attributes(*c), 0u);                    // the compound path itself is no member
}

TEST_F(ArtSuiteTest, SelectingAGroupSelectsWhatItHolds) {
    ASSERT_EQ(art->SetArtUserAttr(H(*g), ZM_ART_SELECTED, ZM_ART_SELECTED), ZM_ERR_NONE);
    EXPECT_EQ(Attributes(*g), ZM_ART_SELECTED);
    EXPECT_EQ(Attributes(*p1), ZM_ART_SELECTED);
    EXPECT_EQ(Attributes(*c2), ZM_ART_SELECTED | ZM_ART_COMPOUND_MEMBER);
    EXPECT_EQ(Attributes(*t), 0u);
    ASSERT_EQ(art->SetArtUserAttr(H(*g), ZM_ART_SELECTED, 0), ZM_ERR_NONE);
    EXPECT_EQ(Attributes(*c2), ZM_ART_COMPOUND_MEMBER);
}

TEST_F(ArtSuiteTest, OnlyTheSelectionCanBeSet) {
    EXPECT_EQ(art->SetArtUserAttr(H(*p1), ZM_ART_SELECTED | ZM_ART_COMPOUND_MEMBER,
                                  ZM_ART_SELECTED | ZM_ART_COMPOUND_MEMBER),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Attributes(*p1), 0u);  // nothing changed, not even the selection
}

TEST_F(ArtSuiteTest, APathsBoundsAreItsCorners) {
    // The rectangle starts at (10, 20) and is 100 wide, 50 high.
    ExpectRect(Bounds(*p1), 10, 70, 110, 20);
}

TEST_F(ArtSuiteTest, ACurvesBoundsReachItsExtremeNotItsDirectionPoints) {
    // From (0, 0) to (100, 0), both direction points 100 above: y(t) = 300 t (1 - t), highest
    // at t = 0.5 with 75, while the direction points sit at 100.
    document::PathGeometry arch;
    arch.segments = {{{0, 0}, {0, 0}, {0, 100}, false}, {{100, 0}, {100, 100}, {100, 0}, false}};
    Art& curve = AddPath(*doc->layers[0]->root, arch, "arch");
    ExpectRect(Bounds(curve), 0, 75, 100, 0);
}

TEST_F(ArtSuiteTest, AGroupsBoundsJoinItsMembers) {
    // p1 spans x 10..110, y 20..70; the compound path's c1 spans 0..10 on both axes.
    ExpectRect(Bounds(*g), 0, 70, 110, 0);
}

TEST_F(ArtSuiteTest, AClipGroupsBoundsAreThoseOfItsClippingPath) {
    Art& clip = AddArt(*doc->layers[0]->root, ArtType::Group, "clip");
    clip.clipGroup = true;
    AddRectangle(clip, 40, 40, 20, 10, "mask").style.clip = true;
    AddRectangle(clip, 0, 0, 500, 500, "clipped");
    ExpectRect(Bounds(clip), 40, 50, 60, 40);
}

TEST_F(ArtSuiteTest, ArtWithBoundsOfItsOwnReportsThem) { ExpectRect(Bounds(*t), 5, 300, 200, 280); }

TEST_F(ArtSuiteTest, ArtWithoutGeometryHasBoundsOfZeros) {
    Art& empty = AddArt(*doc->layers[0]->root, ArtType::Group, "empty");
    ExpectRect(Bounds(empty), 0, 0, 0, 0);
}

TEST_F(ArtSuiteTest, GraphsAreReportedAsGraphs) {
    Art& graph = AddArt(*doc->layers[0]->root, ArtType::Unknown, "graph");
    graph.graph = true;
    ZMBool isGraph = -1;
    ASSERT_EQ(art->IsArtGraph(H(graph), &isGraph), ZM_ERR_NONE);
    EXPECT_EQ(isGraph, 1);
    ASSERT_EQ(art->IsArtGraph(H(*p1), &isGraph), ZM_ERR_NONE);
    EXPECT_EQ(isGraph, 0);
}

TEST_F(ArtSuiteTest, TheNameIsANewStringTheCallerDisposesOf) {
    p1->name = "Fläche";
    ZMUnicodeString name = nullptr;
    ASSERT_EQ(art->GetArtName(H(*p1), &name), ZM_ERR_NONE);
    EXPECT_EQ(ToUtf8(name), "Fläche");
    EXPECT_EQ(strings->Dispose(name), ZM_ERR_NONE);
}

TEST_F(ArtSuiteTest, ANullOrForeignArtHandleIsABadArgument) {
    ZMArtType type = 0;
    EXPECT_EQ(art->GetArtType(nullptr, &type), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(art->GetArtType(ForeignHandle(), &type), ZM_ERR_BAD_ARGUMENT);
    ZMArtHandle parent = nullptr;
    EXPECT_EQ(art->GetArtParent(nullptr, &parent), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(art->SetArtUserAttr(ForeignHandle(), ZM_ART_SELECTED, 0), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(ArtSuiteTest, ANullOutPointerIsABadArgument) {
    EXPECT_EQ(art->GetArtType(H(*p1), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(art->GetArtBounds(H(*p1), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(art->GetArtName(H(*p1), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(art->GetFirstArtOfDocument(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(ArtSuiteTest, ArtOfAClosedDocumentIsNoLongerAccepted) {
    ZMArtHandle gone = H(*p1);
    runtime.documents.CloseCurrent();
    runtime.documents.Add(std::make_unique<document::Document>());  // a document is open
    ZMArtType type = 0;
    EXPECT_EQ(art->GetArtType(gone, &type), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(ArtSuiteTest, WithoutADocumentEveryEntryAnswersNoDocument) {
    ZMArtHandle handle = H(*p1);
    runtime.documents.CloseCurrent();
    ZMArtType type = 0;
    ZMArtHandle other = nullptr;
    uint32_t attributes = 0;
    ZMRealRect bounds{};
    ZMBool flag = 0;
    ZMUnicodeString name = nullptr;
    EXPECT_EQ(art->GetArtType(handle, &type), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(art->GetArtParent(handle, &other), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(art->GetArtFirstChild(handle, &other), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(art->GetArtSibling(handle, &other), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(art->GetArtPriorSibling(handle, &other), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(art->GetArtUserAttr(handle, 1, &attributes), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(art->SetArtUserAttr(handle, 1, 1), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(art->GetArtBounds(handle, &bounds), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(art->IsArtGraph(handle, &flag), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(art->GetArtName(handle, &name), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(art->GetFirstArtOfDocument(&other), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
