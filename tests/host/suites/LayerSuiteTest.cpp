#include <gtest/gtest.h>
#include <zelmora/ZMLayerSuite.h>
#include <zelmora/ZMUnicodeStringSuite.h>

#include <memory>
#include <suites/UnicodeStringHandle.hpp>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::ArtType;

template <typename Handle, typename Object>
Handle H(const Object& object) {
    return reinterpret_cast<Handle>(const_cast<Object*>(&object));
}

// Three layers, topmost first: "Sky" holding a group and a path, "Ground" empty, "Notes".
class LayerSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_LAYER_SUITE_NAME, ZM_LAYER_SUITE_VERSION, layers);
        Acquire(ZM_LAYER_LIST_SUITE_NAME, ZM_LAYER_LIST_SUITE_VERSION, lists);
        Acquire(ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION, strings);
        auto built = std::make_unique<document::Document>();
        sky = &zm::test::AddLayer(*built, "Sky");
        cloud = &zm::test::AddArt(*sky->root, ArtType::Group, "cloud");
        zm::test::AddRectangle(*sky->root, 0, 0, 1, 1, "sun");
        ground = &zm::test::AddLayer(*built, "Ground");
        notes = &zm::test::AddLayer(*built, "Notes");
        runtime.documents.Add(std::move(built));
    }

    ZMLayerHandle Nth(int32_t index) {
        ZMLayerHandle layer = nullptr;
        EXPECT_EQ(layers->GetNthLayer(index, &layer), ZM_ERR_NONE);
        return layer;
    }

    const ZMLayerSuite* layers = nullptr;
    const ZMLayerListSuite* lists = nullptr;
    const ZMUnicodeStringSuite* strings = nullptr;
    document::Layer* sky = nullptr;
    document::Layer* ground = nullptr;
    document::Layer* notes = nullptr;
    document::Art* cloud = nullptr;
};

TEST_F(LayerSuiteTest, LayersAreCountedAndNumberedFromTheTop) {
    int32_t count = -1;
    ASSERT_EQ(layers->CountLayers(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(Nth(0), H<ZMLayerHandle>(*sky));
    EXPECT_EQ(Nth(2), H<ZMLayerHandle>(*notes));
}

TEST_F(LayerSuiteTest, AnIndexOutsideTheLayersIsABadArgument) {
    ZMLayerHandle layer = nullptr;
    EXPECT_EQ(layers->GetNthLayer(3, &layer), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(layers->GetNthLayer(-1, &layer), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(LayerSuiteTest, TheTitleIsANewStringTheCallerDisposesOf) {
    ZMUnicodeString title = nullptr;
    ASSERT_EQ(layers->GetLayerTitle(Nth(1), &title), ZM_ERR_NONE);
    EXPECT_EQ(ToUtf8(title), "Ground");
    EXPECT_EQ(strings->Dispose(title), ZM_ERR_NONE);
}

TEST_F(LayerSuiteTest, TheFirstArtOfALayerIsItsFirstObjectNotItsGroup) {
    ZMArtHandle art = nullptr;
    ASSERT_EQ(layers->GetFirstArtOfLayer(Nth(0), &art), ZM_ERR_NONE);
    EXPECT_EQ(art, H<ZMArtHandle>(*cloud));
    ASSERT_EQ(layers->GetFirstArtOfLayer(Nth(1), &art), ZM_ERR_NONE);
    EXPECT_EQ(art, nullptr);  // an empty layer
}

TEST_F(LayerSuiteTest, TheCurrentLayerIsTheTopmost) {
    ZMLayerHandle layer = nullptr;
    ASSERT_EQ(layers->GetCurrentLayer(&layer), ZM_ERR_NONE);
    EXPECT_EQ(layer, H<ZMLayerHandle>(*sky));
}

TEST_F(LayerSuiteTest, ADocumentWithoutLayersHasNoCurrentLayer) {
    runtime.documents.Add(std::make_unique<document::Document>());
    ZMLayerHandle layer = nullptr;
    EXPECT_EQ(layers->GetCurrentLayer(&layer), ZM_ERR_NOT_FOUND);
}

TEST_F(LayerSuiteTest, ALayerOfAnotherDocumentIsABadArgument) {
    ZMLayerHandle older = Nth(0);
    auto other = std::make_unique<document::Document>();
    zm::test::AddLayer(*other, "Other");
    runtime.documents.Add(std::move(other));
    ZMUnicodeString title = nullptr;
    EXPECT_EQ(layers->GetLayerTitle(older, &title), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(layers->GetLayerTitle(nullptr, &title), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(layers->GetLayerTitle(zm::test::ForeignHandle<ZMLayerHandle>(), &title),
              ZM_ERR_BAD_ARGUMENT);
}

TEST_F(LayerSuiteTest, ANullOutPointerIsABadArgument) {
    EXPECT_EQ(layers->CountLayers(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(layers->GetFirstArtOfLayer(Nth(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(lists->GetCurrentLayerList(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(LayerSuiteTest, TheLayerListOrdersTheLayersFromTheTop) {
    ZMLayerList list = nullptr;
    ASSERT_EQ(lists->GetCurrentLayerList(&list), ZM_ERR_NONE);
    ASSERT_NE(list, nullptr);
    int32_t count = -1;
    ASSERT_EQ(lists->CountLayersOfList(list, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 3);
    ZMLayerHandle layer = nullptr;
    ASSERT_EQ(lists->GetFirstLayerOfList(list, &layer), ZM_ERR_NONE);
    EXPECT_EQ(layer, H<ZMLayerHandle>(*sky));
    ASSERT_EQ(lists->GetNextLayerOfList(list, layer, &layer), ZM_ERR_NONE);
    EXPECT_EQ(layer, H<ZMLayerHandle>(*ground));
    ASSERT_EQ(lists->GetNextLayerOfList(list, layer, &layer), ZM_ERR_NONE);
    EXPECT_EQ(layer, H<ZMLayerHandle>(*notes));
    ASSERT_EQ(lists->GetNextLayerOfList(list, layer, &layer), ZM_ERR_NONE);
    EXPECT_EQ(layer, nullptr);
}

TEST_F(LayerSuiteTest, ALayerListThatIsNotTheCurrentDocumentsIsABadArgument) {
    ZMLayerList list = nullptr;
    ASSERT_EQ(lists->GetCurrentLayerList(&list), ZM_ERR_NONE);
    runtime.documents.Add(std::make_unique<document::Document>());
    int32_t count = -1;
    EXPECT_EQ(lists->CountLayersOfList(list, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(lists->CountLayersOfList(zm::test::ForeignHandle<ZMLayerList>(), &count),
              ZM_ERR_BAD_ARGUMENT);
}

TEST_F(LayerSuiteTest, WithoutADocumentTheEntriesAnswerNoDocument) {
    ZMLayerHandle layer = Nth(0);
    ZMLayerList list = nullptr;
    ASSERT_EQ(lists->GetCurrentLayerList(&list), ZM_ERR_NONE);
    runtime.documents.CloseCurrent();
    int32_t count = -1;
    ZMArtHandle art = nullptr;
    ZMUnicodeString title = nullptr;
    EXPECT_EQ(layers->CountLayers(&count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(layers->GetNthLayer(0, &layer), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(layers->GetLayerTitle(layer, &title), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(layers->GetFirstArtOfLayer(layer, &art), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(layers->GetCurrentLayer(&layer), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(lists->GetCurrentLayerList(&list), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(lists->CountLayersOfList(list, &count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(lists->GetFirstLayerOfList(list, &layer), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(lists->GetNextLayerOfList(list, layer, &layer), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
