#include "plugins/tolvane/inventory/InventoryFixture.hpp"

#include <inventory/ColorSpaceName.hpp>

#include <zelmora/ZMColorSpaceSuite.h>

#include <gtest/gtest.h>

#include <string>

namespace {

class ColorSpaceNameTest : public zm::test::InventoryFixture {
protected:
    // The name appended after a text of its own, so that appending (not replacing) shows.
    std::string NameOf(int16_t family, ZMErr expected = ZM_ERR_NONE) {
        tolvane::HostString text = tolvane::MakeUnicodeFromBytes("<", ZM_ENCODING_PLATFORM);
        EXPECT_EQ(tolvane::ColorSpaceName(family, text), expected);
        return Text(text.Get());
    }
};

TEST_F(ColorSpaceNameTest, EachFamilyHasItsName) {
    EXPECT_EQ(NameOf(ZM_COLOR_SPACE_GRAY), "<Grayscale");
    EXPECT_EQ(NameOf(ZM_COLOR_SPACE_RGB), "<RGB");
    EXPECT_EQ(NameOf(ZM_COLOR_SPACE_LAB), "<Lab");
    EXPECT_EQ(NameOf(ZM_COLOR_SPACE_CMYK), "<CMYK");
    EXPECT_EQ(NameOf(ZM_COLOR_SPACE_SEPARATION), "<Separation");
    EXPECT_EQ(NameOf(ZM_COLOR_SPACE_DEVICE_N), "<DeviceN");
    EXPECT_EQ(NameOf(ZM_COLOR_SPACE_INDEXED), "<Indexed");
}

// 'PARM', and the text as it was.
TEST_F(ColorSpaceNameTest, AFamilyOutsideOneToSevenIsAParameterError) {
    EXPECT_EQ(ZM_ERR_PARAMETER, 0x5041524D);
    EXPECT_EQ(NameOf(0, ZM_ERR_PARAMETER), "<");
    EXPECT_EQ(NameOf(8, ZM_ERR_PARAMETER), "<");
    EXPECT_EQ(NameOf(-1, ZM_ERR_PARAMETER), "<");
}

}  // namespace
