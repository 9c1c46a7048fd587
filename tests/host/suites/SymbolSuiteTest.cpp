#include <gtest/gtest.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMSymbolSuite.h>
#include <zelmora/ZMUnicodeStringSuite.h>

#include <document/Resources.hpp>
#include <memory>
#include <suites/UnicodeStringHandle.hpp>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::Art;
using document::ArtType;

template <typename Handle, typename Object>
Handle H(const Object& object) {
    return reinterpret_cast<Handle>(const_cast<Object*>(&object));
}

// Symbols "Star" and "Tree"; an instance of the tree and one of no symbol.
class SymbolSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_SYMBOL_SUITE_NAME, ZM_SYMBOL_SUITE_VERSION, symbols);
        Acquire(ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION, strings);
        auto built = std::make_unique<document::Document>();
        star = built->symbols.emplace_back(std::make_unique<document::Symbol>()).get();
        star->name = "Star";
        star->definition = std::make_unique<Art>(ArtType::Group, "star-art");
        tree = built->symbols.emplace_back(std::make_unique<document::Symbol>()).get();
        tree->name = "Tree";
        tree->definition = std::make_unique<Art>(ArtType::Group, "tree-art");
        Art* layer = zm::test::AddLayer(*built, "Layer 1").root.get();
        treeInstance = &zm::test::AddArt(*layer, ArtType::SymbolInstance, "use");
        treeInstance->symbol = tree;
        orphan = &zm::test::AddArt(*layer, ArtType::SymbolInstance, "orphan");
        path = &zm::test::AddRectangle(*layer, 0, 0, 1, 1, "path");
        runtime.documents.Add(std::move(built));
    }

    ZMSymbolHandle Nth(int32_t index) {
        ZMSymbolHandle symbol = nullptr;
        EXPECT_EQ(symbols->GetNthSymbol(index, &symbol), ZM_ERR_NONE);
        return symbol;
    }

    const ZMSymbolSuite* symbols = nullptr;
    const ZMUnicodeStringSuite* strings = nullptr;
    document::Symbol* star = nullptr;
    document::Symbol* tree = nullptr;
    Art* treeInstance = nullptr;
    Art* orphan = nullptr;
    Art* path = nullptr;
};

TEST_F(SymbolSuiteTest, SymbolsAreCountedAndNumberedInTheOrderDefined) {
    int32_t count = -1;
    ASSERT_EQ(symbols->CountSymbols(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(Nth(0), H<ZMSymbolHandle>(*star));
    EXPECT_EQ(Nth(1), H<ZMSymbolHandle>(*tree));
    ZMSymbolHandle none = nullptr;
    EXPECT_EQ(symbols->GetNthSymbol(2, &none), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(SymbolSuiteTest, TheNameIsANewStringTheCallerDisposesOf) {
    ZMUnicodeString name = nullptr;
    ASSERT_EQ(symbols->GetSymbolName(Nth(1), &name), ZM_ERR_NONE);
    EXPECT_EQ(ToUtf8(name), "Tree");
    EXPECT_EQ(strings->Dispose(name), ZM_ERR_NONE);
}

TEST_F(SymbolSuiteTest, TheDefinitionArtLiesOutsideTheLayers) {
    ZMArtHandle art = nullptr;
    ASSERT_EQ(symbols->GetSymbolDefinitionArt(Nth(0), &art), ZM_ERR_NONE);
    EXPECT_EQ(art, H<ZMArtHandle>(*star->definition));
}

TEST_F(SymbolSuiteTest, AnInstanceShowsItsSymbol) {
    ZMSymbolHandle symbol = nullptr;
    ASSERT_EQ(symbols->GetSymbolOfInstance(H<ZMArtHandle>(*treeInstance), &symbol), ZM_ERR_NONE);
    EXPECT_EQ(symbol, H<ZMSymbolHandle>(*tree));
    ASSERT_EQ(symbols->GetSymbolOfInstance(H<ZMArtHandle>(*orphan), &symbol), ZM_ERR_NONE);
    EXPECT_EQ(symbol, nullptr);
}

TEST_F(SymbolSuiteTest, ArtThatIsNoInstanceIsOfTheWrongType) {
    ZMSymbolHandle symbol = nullptr;
    EXPECT_EQ(symbols->GetSymbolOfInstance(H<ZMArtHandle>(*path), &symbol), ZM_ERR_WRONG_ART_TYPE);
}

TEST_F(SymbolSuiteTest, ASymbolNotOfTheCurrentDocumentIsABadArgument) {
    ZMUnicodeString name = nullptr;
    EXPECT_EQ(symbols->GetSymbolName(zm::test::ForeignHandle<ZMSymbolHandle>(), &name),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(symbols->GetSymbolName(nullptr, &name), ZM_ERR_BAD_ARGUMENT);
    ZMSymbolHandle older = Nth(0);
    runtime.documents.Add(std::make_unique<document::Document>());
    EXPECT_EQ(symbols->GetSymbolName(older, &name), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(SymbolSuiteTest, WithoutADocumentTheEntriesAnswerNoDocument) {
    ZMSymbolHandle symbol = Nth(0);
    runtime.documents.CloseCurrent();
    int32_t count = -1;
    ZMArtHandle art = nullptr;
    EXPECT_EQ(symbols->CountSymbols(&count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(symbols->GetNthSymbol(0, &symbol), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(symbols->GetSymbolDefinitionArt(symbol, &art), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
