#include <gtest/gtest.h>
#include <lcms2.h>

#include <fstream>
#include <string>
#include <support/ScratchFolder.hpp>

#include "IccProfileFiles.hpp"
#include "SvgFixtures.hpp"

namespace zm::test {
namespace {

TEST(SvgColorProfilesTest, EachProfileFillsTheSlotOfItsColourSpace) {
    ScratchFolder scratch;
    SaveProfile(cmsCreate_sRGBProfile(), "Test RGB", scratch.Path() / "rgb.icc");
    cmsToneCurve* gamma = cmsBuildGamma(nullptr, 2.2);
    SaveProfile(cmsCreateGrayProfile(cmsD50_xyY(), gamma), "Test Gray",
                scratch.Path() / "gray.icc");
    cmsFreeToneCurve(gamma);
    // An ink-limiting link works in CMYK: enough for a CMYK colour space.
    SaveProfile(cmsCreateInkLimitingDeviceLink(cmsSigCmykData, 300), "Test CMYK",
                scratch.Path() / "cmyk.icc");
    std::ofstream(scratch.Path() / "doc.svg") << R"svg(<svg xmlns="http://www.w3.org/2000/svg"
            xmlns:xlink="http://www.w3.org/1999/xlink"><defs>
          <color-profile name="a" xlink:href="rgb.icc"/>
          <color-profile name="b" href="gray.icc"/>
          <color-profile name="c" href="cmyk.icc"/>
          <color-profile name="d" href="missing.icc"/>
        </defs></svg>)svg";
    auto document = host::ImportSvgFile(scratch.Path() / "doc.svg");
    EXPECT_EQ(document->rgbProfile, "Test RGB");
    EXPECT_EQ(document->grayProfile, "Test Gray");
    EXPECT_EQ(document->cmykProfile, "Test CMYK");
}

TEST(SvgColorProfilesTest, AFileThatIsNoProfileIsLeftOut) {
    ScratchFolder scratch;
    std::ofstream(scratch.Path() / "bad.icc") << "not a profile";
    std::ofstream(scratch.Path() / "doc.svg")
        << R"(<svg xmlns="http://www.w3.org/2000/svg"><color-profile href="bad.icc"/></svg>)";
    auto document = host::ImportSvgFile(scratch.Path() / "doc.svg");
    EXPECT_FALSE(document->rgbProfile);
    EXPECT_FALSE(document->cmykProfile);
    EXPECT_FALSE(document->grayProfile);
}

}  // namespace
}  // namespace zm::test
