#include "host/suites/DocumentSuiteFixture.hpp"

#include <zelmora/ZMPatternSuite.h>

#include <gtest/gtest.h>

#include <memory>

namespace zm::host {
namespace {

class PatternSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_PATTERN_SUITE_NAME, ZM_PATTERN_SUITE_VERSION, patterns);
    }

    // "Dots" with a definition group; "Blank" without art.
    document::Document& OpenPatterns() {
        document::Document& document = Open();
        auto dots = std::make_unique<document::Pattern>();
        dots->name = "Dots";
        dots->art = std::make_unique<document::Art>(document::ArtType::Group, "dots-tile");
        auto blank = std::make_unique<document::Pattern>();
        blank->name = "Blank";
        document.patterns.push_back(std::move(dots));
        document.patterns.push_back(std::move(blank));
        return document;
    }

    ZMPatternHandle Nth(int32_t index) {
        ZMPatternHandle pattern = nullptr;
        EXPECT_EQ(patterns->GetNthPattern(index, &pattern), ZM_ERR_NONE);
        return pattern;
    }

    const ZMPatternSuite* patterns = nullptr;
};

TEST_F(PatternSuiteTest, PatternsAreCountedAndNamed) {
    document::Document& document = OpenPatterns();
    int32_t count = -1;
    EXPECT_EQ(patterns->CountPatterns(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(Nth(0), reinterpret_cast<ZMPatternHandle>(document.patterns[0].get()));
    ZMUnicodeString name = String();
    EXPECT_EQ(patterns->GetPatternName(Nth(1), name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "Blank");
}

TEST_F(PatternSuiteTest, ThePatternArtIsItsDefinitionGroup) {
    document::Document& document = OpenPatterns();
    ZMArtHandle art = nullptr;
    EXPECT_EQ(patterns->GetPatternArt(Nth(0), &art), ZM_ERR_NONE);
    EXPECT_EQ(art, reinterpret_cast<ZMArtHandle>(document.patterns[0]->art.get()));
    int sentinel = 0;
    art = reinterpret_cast<ZMArtHandle>(&sentinel);
    EXPECT_EQ(patterns->GetPatternArt(Nth(1), &art), ZM_ERR_NONE);
    EXPECT_EQ(art, nullptr);  // no art
}

TEST_F(PatternSuiteTest, BadHandlesIndexesAndArgumentsAreRefused) {
    OpenPatterns();
    auto foreign = zm::test::ForeignHandle<ZMPatternHandle>();
    ZMArtHandle art = nullptr;
    ZMPatternHandle pattern = nullptr;
    EXPECT_EQ(patterns->GetPatternArt(foreign, &art), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(patterns->GetPatternArt(Nth(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(patterns->GetPatternName(nullptr, String()), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(patterns->GetPatternName(Nth(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(patterns->GetNthPattern(2, &pattern), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(patterns->GetNthPattern(0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(patterns->CountPatterns(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(PatternSuiteTest, WithoutADocumentThereAreNoPatterns) {
    int32_t count = 0;
    ZMPatternHandle pattern = nullptr;
    ZMArtHandle art = nullptr;
    EXPECT_EQ(patterns->CountPatterns(&count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(patterns->GetNthPattern(0, &pattern), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(patterns->GetPatternArt(zm::test::ForeignHandle<ZMPatternHandle>(), &art),
              ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
