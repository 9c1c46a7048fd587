#include "plugins/tolvane/inventory/InventoryFixture.hpp"

#include <document/ColorSpace.hpp>
#include <document/ColorSpaceStore.hpp>
#include <inventory/ColorInventory.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;
using zm::host::document::ColorSpace;
using zm::host::document::ColorSpaceFamily;

// The swatches of gradients.svg: "Warm Red" and "Cool Blue" are CMYK spot colours, "Signal"
// an RGB one, "Ocean", "Process Teal" and "Lab Sand" process colours. Spaces the host hands
// out for swatches and gradients are asked for through the colour space suite; indexed and
// hand-made DeviceN spaces, which only images have, are put into the document's store as an
// image's would be.
class ColorSpaceSpotsTest : public zm::test::InventoryFixture {
protected:
    void SetUp() override {
        InventoryFixture::SetUp();
        Import("gradients.svg");
    }

    ZMColorSpaceHandle SwatchSpace(const std::string& name) {
        tolvane::HostString text = tolvane::MakeUnicodeFromBytes(name.c_str(), ZM_ENCODING_UTF8);
        ZMCustomColorHandle swatch = nullptr;
        EXPECT_EQ(tolvane::sCustomColorSuite->FindCustomColor(text.Get(), &swatch), ZM_ERR_NONE);
        ZMColorSpaceHandle space = nullptr;
        EXPECT_EQ(tolvane::sColorSpaceSuite->GetCustomColorSpace(swatch, &space), ZM_ERR_NONE);
        return space;
    }

    // The space of the gradient filling "<id>Art".
    ZMColorSpaceHandle GradientSpace(const std::string& id) {
        ZMColorSpaceHandle space = nullptr;
        EXPECT_EQ(
            tolvane::sColorSpaceSuite->GetGradientColorSpace(FillOf(id + "Art").c.gradient, &space),
            ZM_ERR_NONE);
        return space;
    }

    static const ColorSpace& SpaceOf(ZMColorSpaceHandle handle) {
        return *reinterpret_cast<const ColorSpace*>(handle);
    }
    ZMColorSpaceHandle Held(ColorSpace space) {
        const ColorSpace& held = Intern(document->colorSpaces, std::move(space));
        return reinterpret_cast<ZMColorSpaceHandle>(const_cast<ColorSpace*>(&held));
    }
    ZMColorSpaceHandle Indexed(ZMColorSpaceHandle base) {
        return Held(zm::host::document::IndexedColorSpace(SpaceOf(base)));
    }
    ZMColorSpaceHandle DeviceN(const std::vector<ZMColorSpaceHandle>& members) {
        std::vector<const ColorSpace*> spaces;
        for (ZMColorSpaceHandle member : members) {
            spaces.push_back(&SpaceOf(member));
        }
        return Held(zm::host::document::DeviceNColorSpace(spaces));
    }
    // A separation whose ink no swatch of the document is named after.
    ZMColorSpaceHandle ForeignInk() {
        const ColorSpace& cmyk = Intern(
            document->colorSpaces, zm::host::document::ProcessColorSpace(ColorSpaceFamily::Cmyk));
        return Held(zm::host::document::SeparationColorSpace("Unknown Ink", cmyk));
    }

    ZMErr Add(ZMColorSpaceHandle space) { return tolvane::AddColorSpaceSpots(space); }
};

// A spot swatch's space is a separation of its name; the entry is the swatch's.
TEST_F(ColorSpaceSpotsTest, ASeparationListsTheSwatchOfItsInk) {
    ASSERT_EQ(Add(SwatchSpace("Warm Red")), ZM_ERR_NONE);
    ASSERT_EQ(Add(SwatchSpace("Signal")), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Signal (RGB)", "Warm Red (CMYK)"}));
}

TEST_F(ColorSpaceSpotsTest, ProcessSpacesListNothing) {
    for (const char* name : {"Ocean", "Process Teal", "Lab Sand"}) {
        EXPECT_EQ(Add(SwatchSpace(name)), ZM_ERR_NONE) << name;
    }
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

// "Spot Inks" has stops Warm Red, Cool Blue, Warm Red: a DeviceN of two separations.
TEST_F(ColorSpaceSpotsTest, EveryMemberOfADeviceNSpaceIsLookedAt) {
    ASSERT_EQ(SpaceOf(GradientSpace("spotInks")).members.size(), 2u);
    ASSERT_EQ(Add(GradientSpace("spotInks")), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Cool Blue (CMYK)", "Warm Red (CMYK)"}));
}

// "Empty" has no stops, so its DeviceN space has no members.
TEST_F(ColorSpaceSpotsTest, ADeviceNSpaceWithoutMembersListsNothing) {
    EXPECT_EQ(Add(GradientSpace("emptyLinear")), ZM_ERR_NONE);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

TEST_F(ColorSpaceSpotsTest, AnIndexedSpaceListsTheSpotsOfItsBase) {
    ASSERT_EQ(Add(Indexed(SwatchSpace("Cool Blue"))), ZM_ERR_NONE);
    ASSERT_EQ(Add(Indexed(GradientSpace("signalStops"))), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Cool Blue (CMYK)", "Signal (RGB)"}));
}

TEST_F(ColorSpaceSpotsTest, AnInkNoSwatchIsNamedAfterEndsWithTheHostsCode) {
    EXPECT_EQ(Add(ForeignInk()), ZM_ERR_NOT_FOUND);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

// The members are looked at in order and the first failure ends the walk: the unknown ink
// after "Warm Red" leaves Warm Red listed; before "Cool Blue", it keeps Cool Blue out.
TEST_F(ColorSpaceSpotsTest, TheFirstFailingMemberEndsTheWalk) {
    EXPECT_EQ(Add(DeviceN({SwatchSpace("Warm Red"), ForeignInk()})), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(Add(DeviceN({ForeignInk(), SwatchSpace("Cool Blue")})), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Warm Red (CMYK)"}));
}

TEST_F(ColorSpaceSpotsTest, ASpotNamedByTwoSpacesIsListedOnce) {
    Add(SwatchSpace("Warm Red"));
    Add(GradientSpace("spotInks"));
    EXPECT_EQ(CountedEntries(Lists().spotColorList),
              (Texts{"Cool Blue (CMYK):1", "Warm Red (CMYK):1"}));
}

TEST_F(ColorSpaceSpotsTest, AFailingFamilyQueryEndsWithTheHostsCode) {
    runtime.faults.FailCall(ZM_COLOR_SPACE_SUITE_NAME, 0, ZM_ERR_INTERNAL);
    EXPECT_EQ(Add(SwatchSpace("Warm Red")), ZM_ERR_INTERNAL);
}

// The alert carries id -2 and the swatch place.
TEST_F(ColorSpaceSpotsTest, ASpotTheListCannotTakeShowsTheAlertAndGivesOutOfMemory) {
    ZMColorSpaceHandle space = SwatchSpace("Warm Red");
    runtime.faults.FailAllocation(1);
    EXPECT_EQ(Add(space), ZM_ERR_NO_MEMORY);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   AddCustomColor:LinkStrAdd")}));
}

}  // namespace
