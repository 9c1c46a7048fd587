#include "ImageFixtures.hpp"

#include <document/ColorSpaceStore.hpp>
#include <images/ImageColorSpace.hpp>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace zm::test {
namespace {

using host::document::ColorSpace;
using host::document::ColorSpaceFamily;
using host::document::ColorSpaceStore;
using host::images::ImageColorSpace;
using host::images::PixelModel;

TEST(ImageColorSpaceTest, EachModelIsItsProcessSpace) {
    ColorSpaceStore store;
    EXPECT_EQ(ImageColorSpace(store, Header(1, 1, PixelModel::Gray, 8)).family,
              ColorSpaceFamily::Gray);
    EXPECT_EQ(ImageColorSpace(store, Header(1, 1, PixelModel::Rgb, 24)).family,
              ColorSpaceFamily::Rgb);
    EXPECT_EQ(ImageColorSpace(store, Header(1, 1, PixelModel::Cmyk, 32)).family,
              ColorSpaceFamily::Cmyk);
    EXPECT_EQ(ImageColorSpace(store, Header(1, 1, PixelModel::Lab, 24)).family,
              ColorSpaceFamily::Lab);
}

TEST(ImageColorSpaceTest, APaletteImageIsIndexedOverItsPalettesSpace) {
    ColorSpaceStore store;
    const ColorSpace& indexed = ImageColorSpace(store, Header(4, 2, PixelModel::Rgb, 8, true));
    EXPECT_EQ(indexed.family, ColorSpaceFamily::Indexed);
    ASSERT_NE(indexed.base, nullptr);
    // The base is the store's one RGB space, the same an RGB image gets.
    EXPECT_EQ(indexed.base, &ImageColorSpace(store, Header(1, 1, PixelModel::Rgb, 24)));
    EXPECT_EQ(indexed.colorants, (std::vector<std::string>{"Red", "Green", "Blue"}));
}

TEST(ImageColorSpaceTest, AlphaIsNoPartOfTheSpace) {
    ColorSpaceStore store;
    EXPECT_EQ(&ImageColorSpace(store, Header(1, 1, PixelModel::Rgb, 32, false, true)),
              &ImageColorSpace(store, Header(1, 1, PixelModel::Rgb, 24)));
    EXPECT_EQ(store.Size(), 1u);
}

host::images::RasterHeader InkHeader(std::vector<std::string> inks) {
    host::images::RasterHeader header =
        Header(1, 1, PixelModel::Inks, static_cast<int32_t>(inks.size()) * 8);
    header.inks = std::move(inks);
    return header;
}

TEST(ImageColorSpaceTest, OneNamedInkIsASeparationShownAsCmyk) {
    ColorSpaceStore store;
    const ColorSpace& space = ImageColorSpace(store, InkHeader({"Orange"}));
    EXPECT_EQ(space.family, ColorSpaceFamily::Separation);
    EXPECT_EQ(space.colorants, (std::vector<std::string>{"Orange"}));
    ASSERT_NE(space.base, nullptr);
    EXPECT_EQ(space.base, &ImageColorSpace(store, Header(1, 1, PixelModel::Cmyk, 32)));
}

// The same ink twice is the same separation twice.
TEST(ImageColorSpaceTest, SeveralNamedInksAreDeviceNOfOneSeparationAnInk) {
    ColorSpaceStore store;
    const ColorSpace& space = ImageColorSpace(store, InkHeader({"Gray", "Orange", "Gray"}));
    EXPECT_EQ(space.family, ColorSpaceFamily::DeviceN);
    EXPECT_EQ(space.colorants, (std::vector<std::string>{"Gray", "Orange", "Gray"}));
    ASSERT_EQ(space.members.size(), 3u);
    EXPECT_EQ(space.members[0], &ImageColorSpace(store, InkHeader({"Gray"})));
    EXPECT_EQ(space.members[1], &ImageColorSpace(store, InkHeader({"Orange"})));
    EXPECT_EQ(space.members[2], space.members[0]);
    // Asked again, the same space.
    EXPECT_EQ(&space, &ImageColorSpace(store, InkHeader({"Gray", "Orange", "Gray"})));
}

}  // namespace
}  // namespace zm::test
