#include "host/fonts/FontFiles.hpp"

#include <fonts/FontCatalogue.hpp>
#include <runtime/HostError.hpp>

#include <gtest/gtest.h>

namespace zm::host::fonts {
namespace {

// A catalogue of exactly the fonts each test names, whatever else the system has installed.
FontCatalogue LiberationAndType1Nimbus() {
    return FontCatalogue({zm::test::kLiberationSansRegular, zm::test::kLiberationSansBold,
                          zm::test::kNimbusSansBoldType1});
}

TEST(FontCatalogueTest, AnInstalledFamilyResolvesToItsProgram) {
    FontCatalogue catalogue = LiberationAndType1Nimbus();
    const CatalogueFont& bold = catalogue.Find({"Liberation Sans", 700, FontSlant::Normal});
    ASSERT_NE(bold.program, nullptr);
    EXPECT_TRUE(bold.facts.installed);
    EXPECT_EQ(bold.facts.postScriptName, "LiberationSans-Bold");  // weight 700 is the bold face
    EXPECT_EQ(bold.facts.technology, FontTechnology::TrueType);
}

TEST(FontCatalogueTest, TheFamilyIsComparedWithoutRegardToCase) {
    FontCatalogue catalogue = LiberationAndType1Nimbus();
    const CatalogueFont& font = catalogue.Find({"liberation sans", 400, FontSlant::Normal});
    EXPECT_TRUE(font.facts.installed);
    EXPECT_EQ(font.facts.postScriptName, "LiberationSans");
}

TEST(FontCatalogueTest, AType1ProgramServesItsFamily) {
    FontCatalogue catalogue = LiberationAndType1Nimbus();
    const CatalogueFont& font = catalogue.Find({"Nimbus Sans", 700, FontSlant::Normal});
    EXPECT_TRUE(font.facts.installed);
    EXPECT_TRUE(font.facts.type1);
    EXPECT_EQ(font.facts.postScriptName, "NimbusSans-Bold");
}

TEST(FontCatalogueTest, AnOpenTypeProgramServesItsFamily) {
    FontCatalogue catalogue({zm::test::kNimbusSansBoldOpenType});
    const CatalogueFont& font = catalogue.Find({"Nimbus Sans", 700, FontSlant::Normal});
    EXPECT_TRUE(font.facts.installed);
    EXPECT_TRUE(font.facts.openType);
    EXPECT_FALSE(font.facts.type1);
}

TEST(FontCatalogueTest, AFallbackToAnotherFamilyIsAFontThatIsNotInstalled) {
    // fontconfig offers one of the catalogue's fonts for any family; that does not count.
    FontCatalogue catalogue = LiberationAndType1Nimbus();
    const CatalogueFont& font = catalogue.Find({"Qwertyuiop Sans", 700, FontSlant::Normal});
    EXPECT_EQ(font.program, nullptr);
    EXPECT_FALSE(font.facts.installed);
    EXPECT_EQ(font.facts.postScriptName, "QwertyuiopSans-Bold");
    EXPECT_EQ(font.facts.windowsName, "Qwertyuiop Sans");
    EXPECT_EQ(font.facts.script, -1);
}

TEST(FontCatalogueTest, TheSameRequestGivesTheSameFont) {
    FontCatalogue catalogue = LiberationAndType1Nimbus();
    const CatalogueFont& first = catalogue.Find({"Liberation Sans", 400, FontSlant::Normal});
    const CatalogueFont& missing = catalogue.Find({"Qwertyuiop Sans", 700, FontSlant::Normal});
    EXPECT_EQ(&catalogue.Find({"Liberation Sans", 400, FontSlant::Normal}), &first);
    EXPECT_EQ(&catalogue.Find({"Qwertyuiop Sans", 700, FontSlant::Normal}), &missing);
    EXPECT_NE(&first, &missing);
}

TEST(FontCatalogueTest, RequestsServedByOneProgramAreTwoFontsSharingIt) {
    // The catalogue has no italic Liberation Sans, so the upright regular face serves both.
    FontCatalogue catalogue = LiberationAndType1Nimbus();
    const CatalogueFont& upright = catalogue.Find({"Liberation Sans", 400, FontSlant::Normal});
    const CatalogueFont& italic = catalogue.Find({"Liberation Sans", 400, FontSlant::Italic});
    EXPECT_NE(&upright, &italic);
    EXPECT_EQ(upright.program, italic.program);
}

TEST(FontCatalogueTest, KeysAndProgramsAreCheckedAgainstWhatTheCatalogueGaveOut) {
    FontCatalogue catalogue = LiberationAndType1Nimbus();
    const CatalogueFont& font = catalogue.Find({"Liberation Sans", 400, FontSlant::Normal});
    EXPECT_EQ(&catalogue.RequireFont(&font), &font);
    EXPECT_EQ(&catalogue.RequireProgram(font.program), font.program);
    int unrelated = 0;
    try {
        catalogue.RequireFont(&unrelated);
        FAIL() << "a foreign key was accepted";
    } catch (const HostError& error) {
        EXPECT_EQ(error.Code(), ZM_ERR_BAD_ARGUMENT);
    }
    // A font key is not a program, nor the other way round.
    EXPECT_THROW(catalogue.RequireProgram(&font), HostError);
    EXPECT_THROW(catalogue.RequireFont(font.program), HostError);
}

}  // namespace
}  // namespace zm::host::fonts
