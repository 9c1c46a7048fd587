#include <document/ArtMatching.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace zm::host::document {
namespace {

std::unique_ptr<Art> Make(ArtType type, std::string id) {
    return std::make_unique<Art>(type, std::move(id));
}

std::vector<std::string> Ids(const std::vector<Art*>& matches) {
    std::vector<std::string> ids;
    for (const Art* art : matches) {
        ids.push_back(art->Id());
    }
    return ids;
}

// Two layers:
//   first:  group g { path p1, compound path c { path c1, path c2 } }, text frame t
//   second: plug-in group b { result group r { path b1 } }, path p2
class ArtMatchingTest : public ::testing::Test {
protected:
    void SetUp() override {
        Art& group = first.root->Add(Make(ArtType::Group, "g"));
        group.Add(Make(ArtType::Path, "p1"));
        Art& compound = group.Add(Make(ArtType::CompoundPath, "c"));
        compound.Add(Make(ArtType::Path, "c1"));
        compound.Add(Make(ArtType::Path, "c2"));
        first.root->Add(Make(ArtType::TextFrame, "t"));
        Art& blend = second.root->Add(Make(ArtType::PluginGroup, "b"));
        Art& result = blend.ResultGroup();
        result.Add(Make(ArtType::Path, "b1"));
        second.root->Add(Make(ArtType::Path, "p2"));
    }

    std::vector<std::string> Match(std::vector<MatchCriterion> criteria) {
        std::vector<Layer*> layers = {&first, &second};
        return Ids(MatchArt(layers, criteria));
    }

    Layer first{"Layer 1"};
    Layer second{"Layer 2"};
};

TEST_F(ArtMatchingTest, AnyTypeGivesEveryObjectInDocumentOrder) {
    // Pre-order, members included, the plug-in group's result group (unnamed) included.
    EXPECT_EQ(Match({{-1, 0, 0}}),
              (std::vector<std::string>{"g", "p1", "c", "c1", "c2", "t", "b", "", "b1", "p2"}));
}

TEST_F(ArtMatchingTest, ATypeSelectsOnlyThatType) {
    EXPECT_EQ(Match({{static_cast<int16_t>(ArtType::Path), 0, 0}}),
              (std::vector<std::string>{"p1", "c1", "c2", "b1", "p2"}));
}

TEST_F(ArtMatchingTest, SeveralCriteriaReturnEachObjectOnce) {
    MatchCriterion text{static_cast<int16_t>(ArtType::TextFrame), 0, 0};
    MatchCriterion any{-1, 0, 0};
    EXPECT_EQ(Match({text, any}).size(), 10u);
    MatchCriterion group{static_cast<int16_t>(ArtType::Group), 0, 0};
    EXPECT_EQ(Match({text, group}), (std::vector<std::string>{"g", "t", ""}));
}

TEST_F(ArtMatchingTest, SelectingAGroupSelectsWhatItHolds) {
    first.root->Children()[0]->SetSelected(true);  // the group g
    EXPECT_EQ(Match({{-1, kArtSelected, kArtSelected}}),
              (std::vector<std::string>{"g", "p1", "c", "c1", "c2"}));
    EXPECT_EQ(Match({{-1, kArtSelected, 0}}),
              (std::vector<std::string>{"t", "b", "", "b1", "p2"}));
}

TEST_F(ArtMatchingTest, CompoundPathMembersCarryTheMemberBit) {
    EXPECT_EQ(Match({{-1, kArtCompoundMember, kArtCompoundMember}}),
              (std::vector<std::string>{"c1", "c2"}));
}

TEST_F(ArtMatchingTest, NoLayersMatchNothing) {
    std::vector<Layer*> none;
    std::vector<MatchCriterion> any = {{-1, 0, 0}};
    EXPECT_TRUE(MatchArt(none, any).empty());
}

TEST(ArtTest, OnlyAPluginGroupHasAResultGroup) {
    Art path(ArtType::Path);
    EXPECT_THROW(path.ResultGroup(), std::logic_error);
    Art blend(ArtType::PluginGroup);
    EXPECT_EQ(&blend.ResultGroup(), &blend.ResultGroup());  // made once
    EXPECT_EQ(blend.Children().size(), 1u);
}

}  // namespace
}  // namespace zm::host::document
