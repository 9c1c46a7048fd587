#include <document/ColorSpace.hpp>
#include <document/ColorSpaceStore.hpp>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace zm::host::document {
namespace {

using Inks = std::vector<std::string>;

TEST(ColorSpaceStoreTest, TheSameDescriptionIsAlwaysTheSameSpace) {
    ColorSpaceStore store;
    const ColorSpace& cmyk = Intern(store, ProcessColorSpace(ColorSpaceFamily::Cmyk));
    EXPECT_EQ(&Intern(store, ProcessColorSpace(ColorSpaceFamily::Cmyk)), &cmyk);
    const ColorSpace& ink = Intern(store, SeparationColorSpace("Warm Red", cmyk));
    EXPECT_EQ(&Intern(store, SeparationColorSpace("Warm Red", cmyk)), &ink);
    EXPECT_EQ(store.Size(), 2u);
    EXPECT_TRUE(store.Holds(&cmyk));
    EXPECT_TRUE(store.Holds(&ink));
}

TEST(ColorSpaceStoreTest, SpacesThatDifferInAnyPartAreDifferentSpaces) {
    ColorSpaceStore store;
    const ColorSpace& cmyk = Intern(store, ProcessColorSpace(ColorSpaceFamily::Cmyk));
    const ColorSpace& rgb = Intern(store, ProcessColorSpace(ColorSpaceFamily::Rgb));
    const ColorSpace& onCmyk = Intern(store, SeparationColorSpace("Ink", cmyk));
    const ColorSpace& onRgb = Intern(store, SeparationColorSpace("Ink", rgb));
    const ColorSpace& other = Intern(store, SeparationColorSpace("Other Ink", cmyk));
    EXPECT_NE(&onCmyk, &onRgb);  // one ink name, two alternates
    EXPECT_NE(&onCmyk, &other);
    EXPECT_NE(&Intern(store, DeviceNColorSpace({&cmyk, &rgb})),
              &Intern(store, DeviceNColorSpace({&rgb, &cmyk})));  // member order counts
    EXPECT_EQ(store.Size(), 7u);
}

TEST(ColorSpaceStoreTest, TheProcessFamiliesHaveTheirOwnInks) {
    EXPECT_EQ(ProcessColorSpace(ColorSpaceFamily::Gray).colorants, Inks{"Gray"});
    EXPECT_EQ(ProcessColorSpace(ColorSpaceFamily::Rgb).colorants, (Inks{"Red", "Green", "Blue"}));
    EXPECT_EQ(ProcessColorSpace(ColorSpaceFamily::Lab).colorants, (Inks{"L", "a", "b"}));
    EXPECT_EQ(ProcessColorSpace(ColorSpaceFamily::Cmyk).colorants,
              (Inks{"Cyan", "Magenta", "Yellow", "Black"}));
    EXPECT_THROW(ProcessColorSpace(ColorSpaceFamily::Separation), std::invalid_argument);
}

TEST(ColorSpaceStoreTest, DeviceNAndIndexedSpacesHaveTheInksOfWhatTheyAreMadeOf) {
    ColorSpaceStore store;
    const ColorSpace& gray = Intern(store, ProcessColorSpace(ColorSpaceFamily::Gray));
    const ColorSpace& ink = Intern(store, SeparationColorSpace("Gold", gray));
    const ColorSpace& deviceN = Intern(store, DeviceNColorSpace({&ink, &gray}));
    EXPECT_EQ(deviceN.colorants, (Inks{"Gold", "Gray"}));  // the members' inks, member order
    EXPECT_EQ(deviceN.base, nullptr);
    const ColorSpace& indexed = Intern(store, IndexedColorSpace(ink));
    EXPECT_EQ(indexed.colorants, Inks{"Gold"});
    EXPECT_EQ(indexed.base, &ink);
    EXPECT_TRUE(indexed.members.empty());
}

TEST(ColorSpaceStoreTest, ASpaceMadeOfAnotherStoresSpacesIsRefused) {
    ColorSpaceStore mine;
    ColorSpaceStore theirs;
    const ColorSpace& foreign = Intern(theirs, ProcessColorSpace(ColorSpaceFamily::Rgb));
    EXPECT_THROW(Intern(mine, SeparationColorSpace("Ink", foreign)), std::invalid_argument);
    EXPECT_THROW(Intern(mine, DeviceNColorSpace({&foreign})), std::invalid_argument);
    EXPECT_THROW(Intern(mine, IndexedColorSpace(foreign)), std::invalid_argument);
    EXPECT_EQ(mine.Size(), 0u);
    EXPECT_FALSE(mine.Holds(&foreign));
    EXPECT_FALSE(mine.Holds(nullptr));
}

}  // namespace
}  // namespace zm::host::document
