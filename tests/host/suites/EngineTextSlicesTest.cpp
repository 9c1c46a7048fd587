#include <suites/EngineTextSlices.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::host {
namespace {

EngineText TextOf(std::vector<std::string> runs) {
    EngineText text;
    for (std::string& run : runs) {
        EngineRun added;
        added.text = std::move(run);
        text.runs.push_back(added);
    }
    return text;
}

std::vector<std::string> Plain(const std::vector<std::shared_ptr<const EngineText>>& pieces) {
    std::vector<std::string> texts;
    for (const auto& piece : pieces) {
        texts.push_back(PlainText(*piece));
    }
    return texts;
}

using Strings = std::vector<std::string>;

TEST(EngineTextSlicesTest, ASliceCountsCharactersAcrossRuns) {
    // "Grüße" then ", world": characters 3..8 are "ße, w".
    EngineText text = TextOf({"Gr\xC3\xBC\xC3\x9F" "e", ", world"});
    auto slice = SliceEngineText(text, 3, 8);
    ASSERT_EQ(slice->runs.size(), 2u);  // both runs keep a part
    EXPECT_EQ(slice->runs[0].text, "\xC3\x9F" "e");
    EXPECT_EQ(slice->runs[1].text, ", w");
}

TEST(EngineTextSlicesTest, ParagraphsEndAfterEachKindOfBreak) {
    // LF, CR LF (one break), CR and U+2029 each end a paragraph and stay with it.
    EngineText text = TextOf({"one\ntwo\r\nthr", "ee\rfour\xE2\x80\xA9" "five"});
    EXPECT_EQ(Plain(ParagraphPieces(text)),
              (Strings{"one\n", "two\r\n", "three\r", "four\xE2\x80\xA9", "five"}));
}

TEST(EngineTextSlicesTest, ABreakAtTheEndStartsNoParagraph) {
    EXPECT_EQ(Plain(ParagraphPieces(TextOf({"only\n"}))), (Strings{"only\n"}));
    EXPECT_EQ(Plain(ParagraphPieces(TextOf({"", ""}))), Strings{});
    EXPECT_EQ(Plain(ParagraphPieces(TextOf({"\n\n"}))), (Strings{"\n", "\n"}));
}

TEST(EngineTextSlicesTest, RunPiecesSkipEmptyRuns) {
    EXPECT_EQ(Plain(RunPieces(TextOf({"a", "", "bc"}))), (Strings{"a", "bc"}));
}

TEST(EngineTextSlicesTest, FindCountsInCharactersNotBytes) {
    EngineText text = TextOf({"\xC3\xBC" "ber ", "\xC3\xBC" "ber"});
    EXPECT_EQ(FindCharacters(text, "\xC3\xBC" "b", 0), 0);
    EXPECT_EQ(FindCharacters(text, "\xC3\xBC" "b", 1), 5);  // "über " is five characters
    EXPECT_EQ(FindCharacters(text, "x", 0), std::nullopt);
    EXPECT_EQ(FindCharacters(text, "", 0), std::nullopt);
}

}  // namespace
}  // namespace zm::host
