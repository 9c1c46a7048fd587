#include "plugins/tolvane/inventory/InventoryFixture.hpp"

#include <inventory/ColorInventory.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

class SpotColorEntryTest : public zm::test::InventoryFixture {
protected:
    void SetUp() override {
        InventoryFixture::SetUp();
        Import("colors.svg");
    }

    ZMCustomColorHandle SwatchOf(const std::string& id) { return FillOf(id).c.custom.color; }

    ZMErr Add(const std::string& id) {
        return tolvane::AddSpotColorEntry(SwatchOf(id), -1, "AddGradient:LinkStrAdd");
    }
};

// Name, one blank, and the model word of each kind.
TEST_F(SpotColorEntryTest, TheEntryIsTheNameABlankAndTheModelWord) {
    ASSERT_EQ(Add("spotCmyk"), ZM_ERR_NONE);
    ASSERT_EQ(Add("spotRgb"), ZM_ERR_NONE);
    ASSERT_EQ(Add("spotLab"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().spotColorList),
              (Texts{"Moss (Lab)", "Warm Red (CMYK)", "Warm Red (RGB)"}));
}

TEST_F(SpotColorEntryTest, AnEntryOfferedTwiceStaysOnceWithCountOne) {
    Add("spotCmyk");
    Add("spotCmyk");
    EXPECT_EQ(CountedEntries(Lists().spotColorList), (Texts{"Warm Red (CMYK):1"}));
}

TEST_F(SpotColorEntryTest, TheModelWordFollowsTheLocale) {
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResSpot/2", "(CMJN)");
    Add("spotCmyk");
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Warm Red (CMJN)"}));
}

TEST_F(SpotColorEntryTest, AFailingNameQueryEndsWithTheHostsCodeAndListsNothing) {
    runtime.faults.FailCall(ZM_CUSTOM_COLOR_SUITE_NAME, 3, ZM_ERR_INTERNAL);
    EXPECT_EQ(Add("spotCmyk"), ZM_ERR_INTERNAL);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
    EXPECT_TRUE(runtime.alerts.empty());
}

// The caller's id and place go to the alert: -1 prints as "ID = " and two blanks.
TEST_F(SpotColorEntryTest, AnEntryTheListCannotTakeShowsTheCallersIdAndPlace) {
    runtime.faults.FailAllocation(1);
    EXPECT_EQ(Add("spotCmyk"), ZM_ERR_NO_MEMORY);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   AddGradient:LinkStrAdd")}));
}

}  // namespace
