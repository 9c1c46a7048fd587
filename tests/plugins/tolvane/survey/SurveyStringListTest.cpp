#include "plugins/tolvane/PluginUnitFixture.hpp"

#include <report/HostString.hpp>
#include <survey/SurveyStringList.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace {

using tolvane::HostString;
using tolvane::SurveyStringList;
using tolvane::SurveyStringNode;

class SurveyStringListTest : public zm::test::PluginUnitFixture {
protected:
    void TearDown() override {
        tolvane::FreeSurveyStringList(list);
        EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);  // every node went back
        PluginUnitFixture::TearDown();
    }

    static HostString Str(const std::string& utf8) {
        return tolvane::MakeUnicodeFromBytes(utf8.c_str(), ZM_ENCODING_UTF8);
    }
    ZMErr Add(const std::string& text, bool allowRepeat = false) {
        return tolvane::LinkStrAdd(list, Str(text).Get(), allowRepeat);
    }
    ZMErr Append(const std::string& text, bool allowRepeat) {
        return tolvane::LinkStrAppend(list, Str(text).Get(), allowRepeat);
    }
    bool Find(const std::string& text) { return tolvane::LinkStrFind(list, Str(text).Get()); }

    // "text:count" per node, front to back, checking the back links on the way.
    std::vector<std::string> Entries() {
        std::vector<std::string> entries;
        const SurveyStringNode* previous = nullptr;
        for (const SurveyStringNode* node = list.first; node != nullptr; node = node->next) {
            EXPECT_EQ(node->previous, previous);
            entries.push_back(Text(node->text) + ":" + std::to_string(node->count));
            previous = node;
        }
        return entries;
    }

    SurveyStringList list{};
};

TEST_F(SurveyStringListTest, AnEmptyListFindsNothing) {
    EXPECT_FALSE(Find("Arial"));
    EXPECT_TRUE(Entries().empty());
}

// Ascending in UTF-16 code-unit order: capitals (U+0041..) before small letters (U+0061..),
// and "é" (U+00E9) after both.
TEST_F(SurveyStringListTest, AddKeepsTheListInTheHostsOrder) {
    for (const char* text : {"b", "\xC3\xA9", "a", "B", "c"}) {
        ASSERT_EQ(Add(text), ZM_ERR_NONE);
    }
    EXPECT_EQ(Entries(), (std::vector<std::string>{"B:1", "a:1", "b:1", "c:1", "\xC3\xA9:1"}));
}

TEST_F(SurveyStringListTest, TheSameTextTwiceWithoutRepeatsCountsTwoOnOneNode) {
    ASSERT_EQ(Add("Minion-Regular (OTF)"), ZM_ERR_NONE);
    ASSERT_EQ(Add("Minion-Regular (OTF)"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(), (std::vector<std::string>{"Minion-Regular (OTF):2"}));
}

TEST_F(SurveyStringListTest, ARepeatOfTheFirstNodeGoesInFrontOfIt) {
    ASSERT_EQ(Add("a"), ZM_ERR_NONE);
    ASSERT_EQ(Add("b"), ZM_ERR_NONE);
    const SurveyStringNode* first = list.first;
    ASSERT_EQ(Add("a", true), ZM_ERR_NONE);
    EXPECT_NE(list.first, first);
    EXPECT_EQ(list.first->next, first);
    EXPECT_EQ(Entries(), (std::vector<std::string>{"a:1", "a:1", "b:1"}));
}

TEST_F(SurveyStringListTest, FindSeesEveryText) {
    Add("m");
    Add("c");
    Append("z", true);
    EXPECT_TRUE(Find("c"));
    EXPECT_TRUE(Find("m"));
    EXPECT_TRUE(Find("z"));
    EXPECT_FALSE(Find("d"));
}

TEST_F(SurveyStringListTest, AppendKeepsVisitingOrder) {
    Append("zeta", true);
    Append("alpha", true);
    Append("zeta", true);
    EXPECT_EQ(Entries(), (std::vector<std::string>{"zeta:1", "alpha:1", "zeta:1"}));
}

TEST_F(SurveyStringListTest, AppendWithoutRepeatsRefusesAKnownTextWithOne) {
    ASSERT_EQ(Append("/art/logo.eps", false), ZM_ERR_NONE);
    EXPECT_EQ(Append("/art/logo.eps", false), 1);
    EXPECT_EQ(Entries(), (std::vector<std::string>{"/art/logo.eps:1"}));
}

// After appends the list is out of order; a sorted add then stops, as the walk from the
// front does, before the first node it sorts before: "b" goes before "m", not after "a".
TEST_F(SurveyStringListTest, AddIntoAnAppendedListStopsWhereTheWalkStops) {
    Append("m", true);
    Append("a", true);
    ASSERT_EQ(Add("b", true), ZM_ERR_NONE);
    // "a" sorts before "b", so the walk stops there and never meets the "a" further on.
    ASSERT_EQ(Add("a"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(), (std::vector<std::string>{"a:1", "b:1", "m:1", "a:1"}));
    ASSERT_EQ(Add("z"), ZM_ERR_NONE);  // sorts after every node: appended
    EXPECT_EQ(Entries().back(), "z:1");
}

TEST_F(SurveyStringListTest, AFailedNodeAllocationIsReportedAndTheListStaysAsItWas) {
    Add("a");
    runtime.faults.FailAllocation(1);
    EXPECT_NE(Add("b"), ZM_ERR_NONE);
    EXPECT_EQ(Append("c", true), ZM_ERR_NONE);  // only one allocation was to fail
    EXPECT_EQ(Entries(), (std::vector<std::string>{"a:1", "c:1"}));
    EXPECT_FALSE(Find("b"));
}

TEST_F(SurveyStringListTest, TheListKeepsItsOwnCopyOfTheText) {
    HostString text = Str("Brush 1");
    tolvane::LinkStrAdd(list, text.Get(), false);
    tolvane::HostString other = Str("changed");
    text.Assign(other.Get());
    EXPECT_EQ(Entries(), (std::vector<std::string>{"Brush 1:1"}));
}

// Many names in random order come out sorted, each counted as often as it was offered.
TEST_F(SurveyStringListTest, ManyNamesInRandomOrderComeOutSortedAndCounted) {
    std::vector<std::string> names;
    for (int i = 0; i < 2000; ++i) {
        names.push_back("name " + std::to_string(i % 700));
    }
    std::shuffle(names.begin(), names.end(), std::mt19937(7));
    for (const std::string& name : names) {
        ASSERT_EQ(Add(name), ZM_ERR_NONE);
    }
    std::vector<int> numbers(700);
    std::iota(numbers.begin(), numbers.end(), 0);
    // ASCII names: byte order is code-unit order.
    std::sort(numbers.begin(), numbers.end(),
              [](int a, int b) { return std::to_string(a) < std::to_string(b); });
    std::vector<std::string> expected;
    for (int i : numbers) {
        // 2000 = 2 * 700 + 600: names 0..599 were offered three times, the rest twice.
        expected.push_back("name " + std::to_string(i) + ":" + (i < 600 ? "3" : "2"));
    }
    EXPECT_EQ(Entries(), expected);
    EXPECT_EQ(tolvane::CountSurveyStrings(list), 700);
}

}  // namespace
