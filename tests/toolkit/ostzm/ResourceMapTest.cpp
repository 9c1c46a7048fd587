#include "ostzm/ResourceMap.hpp"

#include "ostzm/PanelIcons.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

TEST(ResourceMapTest, TheTolvaneBundleMapsItsPanelResourcesToFilesThatExist) {
    auto resources = ostzm::ReadResourceMap(std::string(ZELMORA_TEST_BUNDLE) + "/Resources");
    for (const char* name : {"16002.eve", "16002.mnu"}) {
        ASSERT_EQ(resources.count(name), 1u) << name;
        EXPECT_TRUE(std::filesystem::is_regular_file(resources[name])) << name;
    }
    for (const char* icon : {"HV_PL_Tolvane_N", "HV_PL_Tolvane_N_D"}) {
        for (auto scale : {ostzm::IconScale::Normal, ostzm::IconScale::ThreeHalves,
                           ostzm::IconScale::Double}) {
            std::string name = ostzm::IconResourceName(icon, scale);
            ASSERT_EQ(resources.count(name), 1u) << name;
            EXPECT_TRUE(std::filesystem::is_regular_file(resources[name])) << name;
        }
    }
}

}  // namespace
