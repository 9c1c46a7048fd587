#include "SvgFixtures.hpp"

#include <importers/svg/SvgConditions.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::test {
namespace {

using host::document::Art;
using host::document::Document;
using host::svg::MatchesSystemLanguage;

std::vector<std::string> ChildIds(const Art& art) {
    std::vector<std::string> ids;
    for (const auto& child : art.Children()) {
        ids.push_back(child->Id());
    }
    return ids;
}

TEST(SvgConditionsTest, AnyEnglishTagMatchesTheHostsLanguage) {
    EXPECT_TRUE(MatchesSystemLanguage("en"));
    EXPECT_TRUE(MatchesSystemLanguage("en-US"));
    EXPECT_TRUE(MatchesSystemLanguage("EN-gb"));          // tags ignore case
    EXPECT_TRUE(MatchesSystemLanguage(" fr , en "));      // one tag of the list is enough
    EXPECT_FALSE(MatchesSystemLanguage("eng"));           // "en" must end or go on with "-"
    EXPECT_FALSE(MatchesSystemLanguage("fr,de"));
    EXPECT_FALSE(MatchesSystemLanguage(""));              // no tag: nothing matches
    EXPECT_FALSE(MatchesSystemLanguage(",,"));
}

class SvgSwitchTest : public ::testing::Test {
protected:
    std::unique_ptr<Document> document = OpenSvgFixture("switch.svg");
};

TEST_F(SvgSwitchTest, OnlyTheFirstChildWhoseConditionsHoldIsDrawn) {
    // The title is skipped, the extension is unsupported and German is not the host's
    // language: the British rect is the first that holds, and the fallback after it goes.
    EXPECT_EQ(ChildIds(ArtById(*document, "bySupport")), (std::vector<std::string>{"british"}));
    EXPECT_EQ(host::document::FindArtById(*document, "fallback"), nullptr);
}

TEST_F(SvgSwitchTest, AnEmptyLanguageListFailsAndAnEmptyExtensionListHolds) {
    EXPECT_EQ(ChildIds(ArtById(*document, "emptyLists")), (std::vector<std::string>{"featured"}));
}

TEST_F(SvgSwitchTest, ASwitchWhereNothingHoldsIsAnEmptyGroup) {
    const Art& group = ArtById(*document, "nothingHolds");
    EXPECT_EQ(TypeCode(group), 1);
    EXPECT_TRUE(group.Children().empty());
}

TEST_F(SvgSwitchTest, AChosenGroupKeepsEverythingItHolds) {
    EXPECT_EQ(ChildIds(ArtById(*document, "groupChosen")), (std::vector<std::string>{"english"}));
    EXPECT_EQ(ChildIds(ArtById(*document, "english")), (std::vector<std::string>{"inside"}));
}

}  // namespace
}  // namespace zm::test
