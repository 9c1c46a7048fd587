#include "plugins/tolvane/PluginUnitFixture.hpp"

#include <loader/StringTable.hpp>
#include <report/Error.hpp>
#include <report/LoadTolvaneString.hpp>
#include <report/StringGroups.hpp>

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <vector>

namespace {

struct Group {
    const char* name;
    tolvane::StringGroup keys;
    int size;
    int32_t baseId;
};

#define GROUP(array, base) Group{#array, tolvane::array, static_cast<int>(std::size(tolvane::array)), base}

const std::vector<Group>& Groups() {
    static const std::vector<Group> groups = {
        GROUP(ResFilter, 18000),     GROUP(ResReadWrite, 18050),     GROUP(ResOther, 18100),
        GROUP(ResDocument, 18150),   GROUP(ResPopup, 18250),         GROUP(ResObject, 18300),
        GROUP(ResGradient, 18350),   GROUP(ResImage, 18400),         GROUP(ResMode, 18450),
        GROUP(ResSave, 18500),       GROUP(ResGPNError, 18550),      GROUP(ResFontDetail, 18600),
        GROUP(ResTitleTextBase, 18650), GROUP(ResColorModel, 18700), GROUP(ResFontType, 18800),
        GROUP(ResFontTypeDetail, 18850)};
    return groups;
}

#undef GROUP

// "$$$/Tolvane/Str/<group>/<index>", then an optional platform tag, then "=".
bool NamesItsPlace(const std::string& key, const std::string& group, int index) {
    std::string prefix = "$$$/Tolvane/Str/" + group + "/" + std::to_string(index);
    if (key.rfind(prefix, 0) != 0) {
        return false;
    }
    std::string rest = key.substr(prefix.size());
    return rest.rfind("=", 0) == 0 || rest.rfind("/Win=", 0) == 0 || rest.rfind("/Mac=", 0) == 0;
}

TEST(StringGroupsTest, EveryKeyNamesItsGroupAndIndex) {
    for (const Group& group : Groups()) {
        bool placeholder = std::string(group.name) == "ResTitleTextBase";
        for (int index = placeholder ? 1 : 0; index < group.size; ++index) {
            EXPECT_TRUE(NamesItsPlace(group.keys[index], group.name, index))
                << group.name << "/" << index << ": " << group.keys[index];
        }
    }
    EXPECT_STREQ(tolvane::ResTitleTextBase[0], "<To begin strings at index 1>");
}

TEST(StringGroupsTest, TheGroupsHaveTheirSizes) {
    // Highest index + 1 of each group.
    const std::vector<int> sizes = {7, 13, 10, 13, 2, 29, 8, 26, 5, 3, 5, 19, 12, 6, 10, 10};
    ASSERT_EQ(Groups().size(), sizes.size());
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        EXPECT_EQ(Groups()[i].size, sizes[i]) << Groups()[i].name;
    }
}

// The string table carries the same keys at base id + index (a line end written "\r\n");
// only the section titles 2-4 carry their other platform's wording there.
TEST(StringGroupsTest, TheStringTableCarriesEveryKeyAtItsId) {
    auto table = zm::host::StringTable::Read(ZELMORA_TEST_BUNDLE "/Resources/TolvaneStrings.txt");
    for (const Group& group : Groups()) {
        bool titles = std::string(group.name) == "ResTitleTextBase";
        for (int index = titles ? 1 : 0; index < group.size; ++index) {
            auto found = table.Find(group.baseId + index);
            ASSERT_TRUE(found) << group.name << "/" << index;
            std::string stored(*found);
            for (std::size_t at; (at = stored.find("\\r\\n")) != std::string::npos;) {
                stored.replace(at, 4, "\r\n");
            }
            if (titles && index >= 2 && index <= 4) {
                EXPECT_TRUE(NamesItsPlace(stored, group.name, index)) << stored;
                EXPECT_NE(stored.find("/Win="), std::string::npos) << stored;
            } else {
                EXPECT_EQ(stored, group.keys[index]) << group.name << "/" << index;
            }
        }
    }
    EXPECT_EQ(*table.Find(18652), "$$$/Tolvane/Str/ResTitleTextBase/2/Win=Spot Colors:");
    EXPECT_FALSE(table.Find(18650));
}

class LoadTolvaneStringTest : public zm::test::PluginUnitFixture {};

TEST_F(LoadTolvaneStringTest, AKeyGivesItsDefaultText) {
    EXPECT_EQ(Text(tolvane::LoadTolvaneString(tolvane::ResOther, 6).Get()), "NONE");
    EXPECT_EQ(Text(tolvane::LoadTolvaneString(tolvane::ResDocument, 6).Get()),
              "Show Images in Outline Mode: ");
    EXPECT_EQ(Text(tolvane::LoadTolvaneString(tolvane::ResSave, 2).Get()), " Info.txt");
    EXPECT_EQ(Text(tolvane::LoadTolvaneString(tolvane::keys::kSpotLab).Get()), "(Lab)");
}

TEST_F(LoadTolvaneStringTest, TheFontDetailFormatHoldsRealLineEnds) {
    std::string format = Text(tolvane::LoadTolvaneString(tolvane::ResFontDetail, 10).Get());
    EXPECT_EQ(format.substr(0, 22), "%s\r\n  PostScript Name:");
}

TEST_F(LoadTolvaneStringTest, EveryUseFetchesTheCurrentTranslation) {
    EXPECT_EQ(Text(tolvane::LoadTolvaneString(tolvane::ResOther, 6).Get()), "NONE");
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResOther/6", "KEINE");
    EXPECT_EQ(Text(tolvane::LoadTolvaneString(tolvane::ResOther, 6).Get()), "KEINE");
}

TEST_F(LoadTolvaneStringTest, AFailedFetchThrowsTheHostsCode) {
    runtime.faults.FailCall(ZM_UNICODE_STRING_SUITE_NAME, 2, ZM_ERR_NO_MEMORY);
    try {
        tolvane::LoadTolvaneString(tolvane::ResOther, 6);
        ADD_FAILURE() << "no error";
    } catch (const zm::Error& error) {
        EXPECT_EQ(error.Code(), ZM_ERR_NO_MEMORY);
    }
    runtime.faults.Clear();
}

TEST_F(LoadTolvaneStringTest, BytesBecomeAStringUpToTheirNul) {
    EXPECT_EQ(Text(tolvane::MakeUnicodeFromBytes("caf\xE9", ZM_ENCODING_PLATFORM).Get()),
              "caf\xC3\xA9");  // windows-1252 0xE9 is "é"
    EXPECT_EQ(Text(tolvane::MakeUnicodeFromBytes("caf\xC3\xA9", ZM_ENCODING_UTF8).Get()),
              "caf\xC3\xA9");
}

}  // namespace
