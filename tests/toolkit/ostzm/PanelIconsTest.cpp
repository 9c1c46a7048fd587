#include "ostzm/PanelIcons.hpp"

#include <gtest/gtest.h>

namespace {

using ostzm::IconResourceName;
using ostzm::IconScale;

TEST(PanelIconsTest, ScaledVariantsReplaceTheNamePrefix) {
    EXPECT_EQ(IconResourceName("HV_PL_Tolvane_N", IconScale::Normal), "HV_PL_Tolvane_N");
    EXPECT_EQ(IconResourceName("HV_PL_Tolvane_N_D", IconScale::Double), "HV_x2_PL_Tolvane_N_D");
    EXPECT_EQ(IconResourceName("HV_PL_Tolvane_N", IconScale::ThreeHalves),
              "HV_x15_PL_Tolvane_N");
    EXPECT_EQ(IconResourceName("Other", IconScale::Double), "Other");
}

}  // namespace
