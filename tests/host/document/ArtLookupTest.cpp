#include <document/ArtLookup.hpp>

#include <gtest/gtest.h>

#include <memory>

namespace zm::host::document {
namespace {

std::unique_ptr<Art> Make(ArtType type, std::string id) {
    return std::make_unique<Art>(type, std::move(id));
}

// Layer "A" (root id "la"): group g { path p, path twin }; layer "B": path twin, plug-in
// group b { result { path inner } }.
class ArtLookupTest : public ::testing::Test {
protected:
    void SetUp() override {
        auto first = std::make_unique<Layer>();
        first->name = "A";
        first->root = Make(ArtType::Group, "la");
        Art& group = first->root->Add(Make(ArtType::Group, "g"));
        group.Add(Make(ArtType::Path, "p"));
        firstTwin = &group.Add(Make(ArtType::Path, "twin"));
        auto second = std::make_unique<Layer>();
        second->name = "B";
        second->root->Add(Make(ArtType::Path, "twin"));
        Art& blend = second->root->Add(Make(ArtType::PluginGroup, "b"));
        blend.ResultGroup().Add(Make(ArtType::Path, "inner"));
        document.layers.push_back(std::move(first));
        document.layers.push_back(std::move(second));
    }

    Document document;
    Art* firstTwin = nullptr;
};

TEST_F(ArtLookupTest, FindsArtAtAnyDepth) {
    ASSERT_NE(FindArtById(document, "p"), nullptr);
    EXPECT_EQ(FindArtById(document, "p")->Type(), ArtType::Path);
    ASSERT_NE(FindArtById(document, "inner"), nullptr);  // inside a result group
    EXPECT_EQ(FindArtById(document, "la"), document.layers[0]->root.get());
}

TEST_F(ArtLookupTest, TheFirstInDocumentOrderWins) {
    EXPECT_EQ(FindArtById(document, "twin"), firstTwin);
}

TEST_F(ArtLookupTest, UnknownAndEmptyIdsFindNothing) {
    EXPECT_EQ(FindArtById(document, "nothing"), nullptr);
    EXPECT_EQ(FindArtById(document, ""), nullptr);  // unnamed result groups do not match
}

TEST_F(ArtLookupTest, SelectingFoundArtSelectsWhatItHolds) {
    FindArtById(document, "g")->SetSelected(true);
    EXPECT_TRUE(FindArtById(document, "p")->IsSelected());
    EXPECT_TRUE(firstTwin->IsSelected());
    EXPECT_FALSE(document.layers[1]->root->Children()[0]->IsSelected());  // the other twin
}

}  // namespace
}  // namespace zm::host::document
