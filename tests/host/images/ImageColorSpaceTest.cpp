#include "ImageFixtures.hpp"

#include <document/ColorSpaceStore.hpp>
#include <images/ImageColorSpace.hpp>

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace zm::test
