#include <gtest/gtest.h>
#include <zelmora/HVPluginsSuite.h>
#include <zelmora/ZMCustomColorSuite.h>
#include <zelmora/ZMGradientSuite.h>
#include <zelmora/ZMPathStyleSuite.h>
#include <zelmora/ZMPatternSuite.h>
#include <zelmora/ZMPluginGroupSuite.h>
#include <zelmora/ZMSymbolSuite.h>

#include <string>
#include <vector>

#include "ImportedDocumentFixture.hpp"

namespace zm::test {
namespace {

using Names = std::vector<std::string>;

// Swatches, gradients and patterns of an imported document, read through their suites.
class SvgResourcesThroughSuitesTest : public ImportedDocumentFixture {
protected:
    void SetUp() override {
        ImportedDocumentFixture::SetUp();
        Acquire(ZM_CUSTOM_COLOR_SUITE_NAME, ZM_CUSTOM_COLOR_SUITE_VERSION, colors);
        Acquire(ZM_GRADIENT_SUITE_NAME, ZM_GRADIENT_SUITE_VERSION, gradients);
        Acquire(ZM_PATTERN_SUITE_NAME, ZM_PATTERN_SUITE_VERSION, patterns);
        Acquire(ZM_PATH_STYLE_SUITE_NAME, ZM_PATH_STYLE_SUITE_VERSION, pathStyles);
    }

    ZMCustomColorHandle Swatch(int32_t index) {
        ZMCustomColorHandle color = nullptr;
        EXPECT_EQ(colors->GetNthCustomColor(index, &color), ZM_ERR_NONE);
        return color;
    }

    ZMCustomColor SwatchRecord(int32_t index) {
        ZMCustomColor record{};
        record.kind = -1;
        EXPECT_EQ(colors->GetCustomColor(Swatch(index), &record), ZM_ERR_NONE);
        return record;
    }

    Names SwatchNames() {
        int32_t count = 0;
        EXPECT_EQ(colors->CountCustomColors(&count), ZM_ERR_NONE);
        Names names;
        for (int32_t i = 0; i < count; ++i) {
            ZMUnicodeString name = String();
            EXPECT_EQ(colors->GetCustomColorName(Swatch(i), name), ZM_ERR_NONE);
            names.push_back(Text(name));
        }
        return names;
    }

    ZMGradientHandle Gradient(int32_t index) {
        ZMGradientHandle gradient = nullptr;
        EXPECT_EQ(gradients->GetNthGradient(index, &gradient), ZM_ERR_NONE);
        return gradient;
    }

    Names GradientNames() {
        int32_t count = 0;
        EXPECT_EQ(gradients->CountGradients(&count), ZM_ERR_NONE);
        Names names;
        for (int32_t i = 0; i < count; ++i) {
            ZMUnicodeString name = String();
            EXPECT_EQ(gradients->GetGradientName(Gradient(i), name), ZM_ERR_NONE);
            names.push_back(Text(name));
        }
        return names;
    }

    int16_t GradientType(int32_t index) {
        int16_t type = -1;
        EXPECT_EQ(gradients->GetGradientType(Gradient(index), &type), ZM_ERR_NONE);
        return type;
    }

    std::vector<ZMGradientStop> Stops(int32_t index) {
        int16_t count = -1;
        EXPECT_EQ(gradients->GetGradientStopCount(Gradient(index), &count), ZM_ERR_NONE);
        std::vector<ZMGradientStop> stops;
        for (int16_t i = 0; i < count; ++i) {
            ZMGradientStop stop{};
            EXPECT_EQ(gradients->GetNthGradientStop(Gradient(index), i, &stop), ZM_ERR_NONE);
            stops.push_back(stop);
        }
        return stops;
    }

    ZMPatternHandle Pattern(int32_t index) {
        ZMPatternHandle pattern = nullptr;
        EXPECT_EQ(patterns->GetNthPattern(index, &pattern), ZM_ERR_NONE);
        return pattern;
    }

    Names PatternNames() {
        int32_t count = 0;
        EXPECT_EQ(patterns->CountPatterns(&count), ZM_ERR_NONE);
        Names names;
        for (int32_t i = 0; i < count; ++i) {
            ZMUnicodeString name = String();
            EXPECT_EQ(patterns->GetPatternName(Pattern(i), name), ZM_ERR_NONE);
            names.push_back(Text(name));
        }
        return names;
    }

    ZMPathStyle StyleOf(ZMArtHandle handle) {
        ZMPathStyle style{};
        EXPECT_EQ(pathStyles->GetPathStyle(handle, &style), ZM_ERR_NONE);
        return style;
    }

    const ZMCustomColorSuite* colors = nullptr;
    const ZMGradientSuite* gradients = nullptr;
    const ZMPatternSuite* patterns = nullptr;
    const ZMPathStyleSuite* pathStyles = nullptr;
};

// resources.svg: three zm:swatch elements and two Inkscape solid swatches, gradients with an
// href chain and a loop, two patterns, and shapes painted with them.
class SvgResourcesFileThroughSuitesTest : public SvgResourcesThroughSuitesTest {
protected:
    void SetUp() override {
        SvgResourcesThroughSuitesTest::SetUp();
        Import("resources.svg");
    }
};

TEST_F(SvgResourcesFileThroughSuitesTest, SwatchesInDocumentOrderWithTheirNames) {
    // The name attribute, zm:name, inkscape:label, and the id of an unnamed Inkscape swatch.
    EXPECT_EQ(SwatchNames(), (Names{"Warm Red", "Lab Sand", "Ocean", "Ink Blue", "osbSwatch"}));
}

TEST_F(SvgResourcesFileThroughSuitesTest, ASpotSwatchIsAFourColourWithTheSpotFlag) {
    ZMCustomColor spot = SwatchRecord(0);
    EXPECT_EQ(spot.kind, ZM_CUSTOM_COLOR_FOUR);
    EXPECT_DOUBLE_EQ(spot.c.four.cyan, 0);
    EXPECT_DOUBLE_EQ(spot.c.four.magenta, 0.9);
    EXPECT_DOUBLE_EQ(spot.c.four.yellow, 0.85);
    EXPECT_DOUBLE_EQ(spot.c.four.black, 0);
    EXPECT_EQ(spot.flags & ZM_CUSTOM_COLOR_SPOT, ZM_CUSTOM_COLOR_SPOT);
}

TEST_F(SvgResourcesFileThroughSuitesTest, ProcessSwatchesKeepTheirModels) {
    ZMCustomColor lab = SwatchRecord(1);
    EXPECT_EQ(lab.kind, ZM_CUSTOM_COLOR_LAB);
    EXPECT_DOUBLE_EQ(lab.c.lab.l, 80);
    EXPECT_DOUBLE_EQ(lab.c.lab.a, 5);
    EXPECT_DOUBLE_EQ(lab.c.lab.b, 20);
    EXPECT_EQ(lab.flags, 0);  // no spot attribute: a global process colour
    ZMCustomColor ocean = SwatchRecord(2);
    EXPECT_EQ(ocean.kind, ZM_CUSTOM_COLOR_THREE);
    EXPECT_DOUBLE_EQ(ocean.c.three.red, 0x33 / 255.0);  // #336699
    EXPECT_DOUBLE_EQ(ocean.c.three.green, 0x66 / 255.0);
    EXPECT_DOUBLE_EQ(ocean.c.three.blue, 0x99 / 255.0);
}

TEST_F(SvgResourcesFileThroughSuitesTest, InkscapeSwatchesAreProcessColoursOfTheirStop) {
    ZMCustomColor ink = SwatchRecord(3);
    EXPECT_EQ(ink.kind, ZM_CUSTOM_COLOR_THREE);  // stop-color #0000ff
    EXPECT_DOUBLE_EQ(ink.c.three.blue, 1);
    EXPECT_EQ(ink.flags, 0);
    ZMCustomColor osb = SwatchRecord(4);
    EXPECT_EQ(osb.kind, ZM_CUSTOM_COLOR_FOUR);  // device-cmyk(1 0 0 0)
    EXPECT_DOUBLE_EQ(osb.c.four.cyan, 1);
    EXPECT_EQ(osb.flags, 0);
}

TEST_F(SvgResourcesFileThroughSuitesTest, ASwatchIsFoundByItsExactName) {
    ZMCustomColorHandle found = nullptr;
    ASSERT_EQ(colors->FindCustomColor(String("Ocean"), &found), ZM_ERR_NONE);
    EXPECT_EQ(found, Swatch(2));
    EXPECT_EQ(colors->FindCustomColor(String("ocean"), &found), ZM_ERR_NOT_FOUND);
}

TEST_F(SvgResourcesFileThroughSuitesTest, SwatchPaintIsACustomColourAtFullTint) {
    ZMPathStyle spot = StyleOf(ArtNamed("spotFill"));
    ASSERT_EQ(spot.fill.color.kind, ZM_COLOR_CUSTOM);
    EXPECT_EQ(spot.fill.color.c.custom.color, Swatch(0));
    EXPECT_EQ(spot.fill.color.c.custom.tint, 0);
    // Straight to the Inkscape swatch, and through a gradient that only points at it.
    EXPECT_EQ(StyleOf(ArtNamed("inkDirect")).fill.color.c.custom.color, Swatch(3));
    ZMPathStyle through = StyleOf(ArtNamed("inkFill"));
    EXPECT_EQ(through.fill.color.kind, ZM_COLOR_CUSTOM);
    EXPECT_EQ(through.fill.color.c.custom.color, Swatch(3));
}

TEST_F(SvgResourcesFileThroughSuitesTest, GradientsAreNamedByZmNameElseLabelElseId) {
    // "useInk" only points at a swatch, so it is no gradient of its own.
    EXPECT_EQ(GradientNames(), (Names{"Sky", "Derived", "loopA", "loopB"}));
    EXPECT_EQ(GradientType(0), ZM_GRADIENT_LINEAR);
    EXPECT_EQ(GradientType(1), ZM_GRADIENT_RADIAL);
}

TEST_F(SvgResourcesFileThroughSuitesTest, StopsInOffsetOrderWithTheirColours) {
    std::vector<ZMGradientStop> stops = Stops(0);
    ASSERT_EQ(stops.size(), 3u);
    EXPECT_EQ(stops[0].offset, 0);
    EXPECT_EQ(stops[0].color.kind, ZM_COLOR_THREE);  // #fff
    EXPECT_EQ(stops[0].color.c.three.green, 1);
    EXPECT_EQ(stops[0].opacity, 1);
    EXPECT_EQ(stops[1].offset, 0.5);  // 50%
    EXPECT_EQ(stops[1].color.kind, ZM_COLOR_CUSTOM);
    EXPECT_EQ(stops[1].color.c.custom.color, Swatch(0));  // url(#spot1)
    EXPECT_EQ(stops[2].offset, 0.5);                      // 0.3 after 0.5 is raised to it
    EXPECT_EQ(stops[2].opacity, 0.5);
    for (const ZMGradientStop& stop : stops) {
        EXPECT_EQ(stop.midpoint, 0.5);  // colours blend evenly between stops
    }
}

TEST_F(SvgResourcesFileThroughSuitesTest, AGradientWithoutStopsInheritsThemThroughHref) {
    std::vector<ZMGradientStop> derived = Stops(1);
    ASSERT_EQ(derived.size(), 3u);  // those of "Sky"
    EXPECT_EQ(derived[1].color.c.custom.color, Swatch(0));
    EXPECT_TRUE(Stops(2).empty());  // loopA and loopB point at each other: no stops
    EXPECT_TRUE(Stops(3).empty());
}

TEST_F(SvgResourcesFileThroughSuitesTest, GradientAndPatternPaintNameTheDocumentsResources) {
    ZMPathStyle style = StyleOf(ArtNamed("gradientFill"));
    ASSERT_EQ(style.fill.color.kind, ZM_COLOR_GRADIENT);
    EXPECT_EQ(style.fill.color.c.gradient, Gradient(1));  // url(#derived)
    ASSERT_EQ(style.stroke.color.kind, ZM_COLOR_PATTERN);
    EXPECT_EQ(style.stroke.color.c.pattern, Pattern(1));  // url(#dots2)
}

TEST_F(SvgResourcesFileThroughSuitesTest, PatternsAreNamedAndHoldATileOutsideTheLayers) {
    EXPECT_EQ(PatternNames(), (Names{"dots", "More Dots"}));
    for (int32_t i = 0; i < 2; ++i) {
        ZMArtHandle tile = nullptr;
        ASSERT_EQ(patterns->GetPatternArt(Pattern(i), &tile), ZM_ERR_NONE);
        EXPECT_EQ(TypeOf(tile), ZM_ART_GROUP);
        EXPECT_EQ(Parent(tile), nullptr);
        // The circle; "More Dots" takes it from "dots" through href.
        EXPECT_EQ(TypeOf(FirstChild(tile)), ZM_ART_PATH) << i;
    }
}

TEST_F(SvgResourcesThroughSuitesTest, ZmNameBeatsTheLabelWhichBeatsTheId) {
    Import("resource-names.svg");
    EXPECT_EQ(GradientNames(), (Names{"Chosen", "Glow"}));
    EXPECT_EQ(PatternNames(), Names{"Checkerboard"});
    EXPECT_EQ(SwatchNames(), Names{"Leaf Green"});  // no name attribute: its label
}

// structure.svg: uses of a <symbol> and of a plain rect, and a plug-in group.
class SvgDefinitionsThroughSuitesTest : public ImportedDocumentFixture {
protected:
    void SetUp() override {
        ImportedDocumentFixture::SetUp();
        Acquire(ZM_SYMBOL_SUITE_NAME, ZM_SYMBOL_SUITE_VERSION, symbols);
        Acquire(ZM_PLUGIN_GROUP_SUITE_NAME, ZM_PLUGIN_GROUP_SUITE_VERSION, groups);
        Acquire(ZM_HV_PLUGINS_SUITE_NAME, ZM_HV_PLUGINS_SUITE_VERSION, plugins);
        Import("structure.svg");
    }

    ZMSymbolHandle SymbolOf(ZMArtHandle instance) {
        ZMSymbolHandle symbol = nullptr;
        EXPECT_EQ(symbols->GetSymbolOfInstance(instance, &symbol), ZM_ERR_NONE);
        return symbol;
    }

    ZMSymbolHandle NthSymbol(int32_t index) {
        ZMSymbolHandle symbol = nullptr;
        EXPECT_EQ(symbols->GetNthSymbol(index, &symbol), ZM_ERR_NONE);
        return symbol;
    }

    std::string SymbolName(ZMSymbolHandle symbol) {
        ZMUnicodeString name = nullptr;
        EXPECT_EQ(symbols->GetSymbolName(symbol, &name), ZM_ERR_NONE);
        std::string text = Text(name);
        EXPECT_EQ(strings->Dispose(name), ZM_ERR_NONE);
        return text;
    }

    ZMArtHandle Definition(ZMSymbolHandle symbol) {
        ZMArtHandle art = nullptr;
        EXPECT_EQ(symbols->GetSymbolDefinitionArt(symbol, &art), ZM_ERR_NONE);
        return art;
    }

    const ZMSymbolSuite* symbols = nullptr;
    const ZMPluginGroupSuite* groups = nullptr;
    const HVPluginsSuite* plugins = nullptr;
};

TEST_F(SvgDefinitionsThroughSuitesTest, OneSymbolPerUsedElementInTheOrderFirstUsed) {
    int32_t count = 0;
    ASSERT_EQ(symbols->CountSymbols(&count), ZM_ERR_NONE);
    // use1 and use2 show "star"; use3 shows the rect "plain"; the broken use makes nothing.
    ASSERT_EQ(count, 2);
    EXPECT_EQ(SymbolName(NthSymbol(0)), "star");
    EXPECT_EQ(SymbolName(NthSymbol(1)), "plain");
    EXPECT_EQ(SymbolOf(ArtNamed("use1")), NthSymbol(0));
    EXPECT_EQ(SymbolOf(ArtNamed("use2")), NthSymbol(0));
    EXPECT_EQ(SymbolOf(ArtNamed("use3")), NthSymbol(1));
}

TEST_F(SvgDefinitionsThroughSuitesTest, ASymbolsDefinitionLiesOutsideTheLayers) {
    // <symbol> becomes a group holding its path; a used rect is the path itself.
    ZMArtHandle star = Definition(NthSymbol(0));
    EXPECT_EQ(TypeOf(star), ZM_ART_GROUP);
    EXPECT_EQ(Parent(star), nullptr);
    EXPECT_EQ(TypeOf(FirstChild(star)), ZM_ART_PATH);
    ZMArtHandle plain = Definition(NthSymbol(1));
    EXPECT_EQ(TypeOf(plain), ZM_ART_PATH);
    EXPECT_NE(plain, ArtNamed("plain"));  // not the rect drawn in the layer
}

TEST_F(SvgDefinitionsThroughSuitesTest, OnlyInstancesShowASymbol) {
    ZMSymbolHandle symbol = nullptr;
    EXPECT_EQ(symbols->GetSymbolOfInstance(ArtNamed("plain"), &symbol), ZM_ERR_WRONG_ART_TYPE);
}

TEST_F(SvgDefinitionsThroughSuitesTest, APluginGroupNamesThePluginThatMadeIt) {
    ZMArtHandle blend = ArtNamed("blend");
    ZMPluginGroupClass groupClass = nullptr;
    ASSERT_EQ(groups->GetPluginArtClass(blend, &groupClass), ZM_ERR_NONE);
    const char* name = nullptr;
    ASSERT_EQ(groups->GetPluginClassName(groupClass, &name), ZM_ERR_NONE);
    EXPECT_STREQ(name, "Quorvel Path Blends");  // zm:plugin
    // The plug-in is not loaded; the plug-ins suite still names it.
    ZMPluginRef maker = nullptr;
    ASSERT_EQ(groups->GetPluginClassPluginRef(groupClass, &maker), ZM_ERR_NONE);
    const char* makerName = nullptr;
    ASSERT_EQ(plugins->GetPluginName(maker, &makerName), ZM_ERR_NONE);
    EXPECT_STREQ(makerName, "Quorvel Path Blends");
    // Known plug-ins: the loaded "Probe", then the one only the document names.
    int32_t count = 0;
    ASSERT_EQ(plugins->CountPlugins(&count), ZM_ERR_NONE);
    Names known;
    for (int32_t i = 0; i < count; ++i) {
        ZMPluginRef plugin = nullptr;
        ASSERT_EQ(plugins->GetNthPlugin(i, &plugin), ZM_ERR_NONE);
        ASSERT_EQ(plugins->GetPluginName(plugin, &makerName), ZM_ERR_NONE);
        known.emplace_back(makerName);
    }
    EXPECT_EQ(known, (Names{"Probe", "Quorvel Path Blends"}));
}

TEST_F(SvgDefinitionsThroughSuitesTest, APluginGroupsResultGroupHoldsItsChildren) {
    ZMArtHandle blend = ArtNamed("blend");
    ZMArtHandle result = nullptr;
    ASSERT_EQ(groups->GetPluginArtResultGroup(blend, &result), ZM_ERR_NONE);
    EXPECT_EQ(result, FirstChild(blend));
    EXPECT_EQ(NamesOf({FirstChild(result), Sibling(FirstChild(result))}), (Names{"b1", "b2"}));
    ZMPluginGroupClass groupClass = nullptr;
    EXPECT_EQ(groups->GetPluginArtClass(ArtNamed("chart"), &groupClass), ZM_ERR_WRONG_ART_TYPE);
}

}  // namespace
}  // namespace zm::test
