#include "host/suites/TextPiecesFixture.hpp"

#include <zelmora/KRXFindSuite.h>
#include <zelmora/KRXStorySuites.h>
#include <zelmora/KRXTextRangeSuites.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::host {
namespace {

using Strings = std::vector<std::string>;

class KRXStorySuitesTest : public zm::test::TextPiecesFixture {
protected:
    void SetUp() override {
        TextPiecesFixture::SetUp();
        Acquire(ZM_KRX_STORIES_SUITE_NAME, ZM_KRX_STORIES_SUITE_VERSION, stories);
        Acquire(ZM_KRX_STORY_SUITE_NAME, ZM_KRX_STORY_SUITE_VERSION, story);
        Acquire(ZM_KRX_TEXT_RANGES_SUITE_NAME, ZM_KRX_TEXT_RANGES_SUITE_VERSION, rangeLists);
        Acquire(ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_NAME, ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_VERSION,
                rangesIterators);
        Acquire(ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_NAME, ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_VERSION,
                runsIterators);
        Acquire(ZM_KRX_WORDS_ITERATOR_SUITE_NAME, ZM_KRX_WORDS_ITERATOR_SUITE_VERSION,
                wordsIterators);
        Acquire(ZM_KRX_FIND_SUITE_NAME, ZM_KRX_FIND_SUITE_VERSION, find);
        OpenText("krx-story.svg");
    }

    // The text of each story of the document, in order.
    Strings StoryTexts() {
        KRXStoriesRef list = nullptr;
        EXPECT_EQ(stories->GetDocumentStories(&list), ZM_ERR_NONE);
        Strings texts;
        for (int32_t index = 0; index < Size(stories, list); ++index) {
            KRXStoryRef item = nullptr;
            EXPECT_EQ(stories->Item(list, index, &item), ZM_ERR_NONE);
            KRXTextRangeRef range = nullptr;
            EXPECT_EQ(story->GetTextRange(item, &range), ZM_ERR_NONE);
            texts.push_back(Text(range));
            EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
            EXPECT_EQ(story->Release(item), ZM_ERR_NONE);
        }
        EXPECT_EQ(stories->Release(list), ZM_ERR_NONE);
        return texts;
    }

    Strings RunsOf(const char* id) {
        KRXTextRangeRef range = RangeOf(id);
        KRXTextRunsIteratorRef iterator = nullptr;
        EXPECT_EQ(runsIterators->Create(range, &iterator), ZM_ERR_NONE);
        EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);  // the iterator keeps the text
        return Texts(runsIterators, iterator);
    }

    Strings WordsOf(KRXTextRangeRef range) {
        KRXWordsIteratorRef iterator = nullptr;
        EXPECT_EQ(wordsIterators->Create(range, &iterator), ZM_ERR_NONE);
        return Texts(wordsIterators, iterator);
    }

    const KRXStoriesSuite* stories = nullptr;
    const KRXStorySuite* story = nullptr;
    const KRXTextRangesSuite* rangeLists = nullptr;
    const KRXTextRangesIteratorSuite* rangesIterators = nullptr;
    const KRXTextRunsIteratorSuite* runsIterators = nullptr;
    const KRXWordsIteratorSuite* wordsIterators = nullptr;
    const KRXFindSuite* find = nullptr;
};

TEST_F(KRXStorySuitesTest, TheStoriesAreTheTextFramesInDocumentOrder) {
    // The first layer's point text, then the second layer's area text; the rectangle is no text.
    EXPECT_EQ(StoryTexts(), (Strings{"Hello, brave new world", "Second story"}));
}

TEST_F(KRXStorySuitesTest, WithoutADocumentThereAreNoStories) {
    runtime.documents.CloseCurrent();
    KRXStoriesRef list = nullptr;
    EXPECT_EQ(stories->GetDocumentStories(&list), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(list, nullptr);
    EXPECT_EQ(stories->GetDocumentStories(nullptr), ZM_ERR_NO_DOCUMENT);
}

TEST_F(KRXStorySuitesTest, AStoryFlowsThroughOneFrameOfItsOwnText) {
    KRXStoriesRef list = nullptr;
    ASSERT_EQ(stories->GetDocumentStories(&list), ZM_ERR_NONE);
    KRXStoryRef second = nullptr;
    ASSERT_EQ(stories->Item(list, 1, &second), ZM_ERR_NONE);
    EXPECT_EQ(stories->Release(list), ZM_ERR_NONE);  // the story outlives its list
    int32_t count = -1;
    EXPECT_EQ(story->CountFrames(second, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 1);  // frames are never linked
    KRXTextFrameRef frame = nullptr;
    ASSERT_EQ(story->GetFrame(second, 0, &frame), ZM_ERR_NONE);
    KRXFrameType type = -1;
    EXPECT_EQ(frames->GetType(frame, &type), ZM_ERR_NONE);
    EXPECT_EQ(type, KRX_FRAME_TYPE_IN_PATH);  // "closing" flows in a rectangle
    EXPECT_EQ(frames->Release(frame), ZM_ERR_NONE);
    EXPECT_EQ(story->GetFrame(second, 1, &frame), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(story->GetFrame(second, -1, &frame), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(story->GetFrame(second, 0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(story->Release(second), ZM_ERR_NONE);
}

TEST_F(KRXStorySuitesTest, ListsAndStoriesRefuseWhatTheyDidNotHandOut) {
    KRXStoriesRef list = nullptr;
    ASSERT_EQ(stories->GetDocumentStories(&list), ZM_ERR_NONE);
    KRXStoryRef item = nullptr;
    EXPECT_EQ(stories->Item(list, 2, &item), ZM_ERR_BAD_ARGUMENT);  // two stories: 0 and 1
    EXPECT_EQ(stories->Item(list, 0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(stories->GetSize(list, nullptr), ZM_ERR_BAD_ARGUMENT);
    // A list is no story, and a story list no range list.
    EXPECT_EQ(story->AddRef(reinterpret_cast<KRXStoryRef>(list)), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(rangeLists->AddRef(reinterpret_cast<KRXTextRangesRef>(list)), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(stories->AddRef(list), ZM_ERR_NONE);
    EXPECT_EQ(stories->Release(list), ZM_ERR_NONE);
    EXPECT_EQ(stories->Release(list), ZM_ERR_NONE);
    int32_t size = -1;
    EXPECT_EQ(stories->GetSize(list, &size), ZM_ERR_BAD_ARGUMENT);  // its last reference went
    EXPECT_EQ(stories->Release(list), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(story->CountFrames(nullptr, &size), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(KRXStorySuitesTest, RunsAreTheStretchesOfOneFontAndPaint) {
    // The bold tspan cuts the text into three runs.
    EXPECT_EQ(RunsOf("opening"), (Strings{"Hello, ", "brave new", " world"}));
    EXPECT_EQ(RunsOf("closing"), (Strings{"Second story"}));
}

TEST_F(KRXStorySuitesTest, ARunKeepsItsFont) {
    KRXTextRangeRef range = RangeOf("opening");
    KRXTextRunsIteratorRef iterator = nullptr;
    ASSERT_EQ(runsIterators->Create(range, &iterator), ZM_ERR_NONE);
    EXPECT_EQ(runsIterators->Next(iterator), ZM_ERR_NONE);
    KRXTextRangeRef second = nullptr;
    ASSERT_EQ(runsIterators->Item(iterator, &second), ZM_ERR_NONE);
    KRXCharInspectorRef inspector = nullptr;
    ASSERT_EQ(ranges->GetCharInspector(second, &inspector), ZM_ERR_NONE);
    // "brave new" alone: only the bold face, not the regular one around it.
    EXPECT_EQ(FontKeys(inspector), (std::vector<ZMFontKey>{Key("Liberation Sans", 700)}));
    EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
    EXPECT_EQ(ranges->Release(second), ZM_ERR_NONE);
    EXPECT_EQ(runsIterators->Release(iterator), ZM_ERR_NONE);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
}

TEST_F(KRXStorySuitesTest, ADoneIteratorHasNoItemAndNoNext) {
    KRXTextRangeRef range = RangeOf("closing");
    KRXTextRunsIteratorRef iterator = nullptr;
    ASSERT_EQ(runsIterators->Create(range, &iterator), ZM_ERR_NONE);
    EXPECT_EQ(runsIterators->Next(iterator), ZM_ERR_NONE);  // past the one run
    int32_t done = -1;
    EXPECT_EQ(runsIterators->IsDone(iterator, &done), ZM_ERR_NONE);
    EXPECT_EQ(done, 1);
    KRXTextRangeRef item = nullptr;
    EXPECT_EQ(runsIterators->Item(iterator, &item), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(item, nullptr);
    EXPECT_EQ(runsIterators->Next(iterator), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(runsIterators->IsDone(iterator, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(runsIterators->Create(range, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(runsIterators->Create(nullptr, &iterator), ZM_ERR_BAD_ARGUMENT);
    // A runs iterator is not a words iterator, though both walk ranges.
    EXPECT_EQ(wordsIterators->Next(reinterpret_cast<KRXWordsIteratorRef>(iterator)),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(runsIterators->Release(iterator), ZM_ERR_NONE);
    EXPECT_EQ(runsIterators->Release(iterator), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
}

TEST_F(KRXStorySuitesTest, WordsFollowTheUnicodeRulesAcrossRuns) {
    // The comma and the blanks are no words; the bold run holds two words.
    KRXTextRangeRef range = RangeOf("opening");
    EXPECT_EQ(WordsOf(range), (Strings{"Hello", "brave", "new", "world"}));
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
}

TEST_F(KRXStorySuitesTest, WordsKeepLettersBeyondASCIIWhole) {
    // "Grüße, world": the word rules keep ü and ß inside the first word.
    KRXTextRangeRef range = nullptr;
    OpenText("two-fonts.svg");
    range = RangeOf("greeting");
    EXPECT_EQ(WordsOf(range), (Strings{"Gr\xC3\xBC\xC3\x9F"
                                       "e",
                                       "world"}));
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
}

TEST_F(KRXStorySuitesTest, FindGivesTheMatchAndWhereItStarts) {
    KRXTextRangeRef range = RangeOf("opening");
    int32_t start = -2;
    KRXTextRangeRef match = nullptr;
    ASSERT_EQ(find->FindText(range, "new", 0, &start, &match), ZM_ERR_NONE);
    EXPECT_EQ(start, 13);  // "Hello, " is 7 characters, "brave " 6 more
    EXPECT_EQ(Text(match), "new");
    EXPECT_EQ(ranges->Release(match), ZM_ERR_NONE);
    // From 3 on, the first "l" is the second one of "Hello".
    ASSERT_EQ(find->FindText(range, "l", 3, &start, &match), ZM_ERR_NONE);
    EXPECT_EQ(start, 3);
    EXPECT_EQ(ranges->Release(match), ZM_ERR_NONE);
    // "w w" spans two runs: the w of "new" at 15, the blank, the w of "world".
    ASSERT_EQ(find->FindText(range, "w w", 0, &start, &match), ZM_ERR_NONE);
    EXPECT_EQ(start, 15);
    EXPECT_EQ(Text(match), "w w");
    EXPECT_EQ(ranges->Release(match), ZM_ERR_NONE);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
}

TEST_F(KRXStorySuitesTest, TextThatIsNotThereIsNotFound) {
    KRXTextRangeRef range = RangeOf("opening");
    int32_t start = 0;
    auto match = reinterpret_cast<KRXTextRangeRef>(&start);
    EXPECT_EQ(find->FindText(range, "hello", 0, &start, &match), ZM_ERR_NONE);  // case counts
    EXPECT_EQ(start, -1);
    EXPECT_EQ(match, nullptr);
    // "Hello" starts at 0 only, so from 1 on it is not there.
    EXPECT_EQ(find->FindText(range, "Hello", 1, &start, &match), ZM_ERR_NONE);
    EXPECT_EQ(start, -1);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
}

TEST_F(KRXStorySuitesTest, FindRefusesNothingToFindAndPlacesOutsideTheRange) {
    KRXTextRangeRef range = RangeOf("opening");
    int32_t start = 0;
    KRXTextRangeRef match = nullptr;
    EXPECT_EQ(find->FindText(range, "", 0, &start, &match), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(find->FindText(range, nullptr, 0, &start, &match), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(find->FindText(range, "\xC3", 0, &start, &match), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(find->FindText(range, "d", 23, &start, &match), ZM_ERR_BAD_ARGUMENT);  // size 22
    EXPECT_EQ(find->FindText(range, "d", -1, &start, &match), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(find->FindText(range, "d", 0, nullptr, &match), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(find->FindText(range, "d", 0, &start, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(find->FindText(nullptr, "d", 0, &start, &match), ZM_ERR_BAD_ARGUMENT);
    // From 22, the end, there is room for nothing.
    EXPECT_EQ(find->FindText(range, "d", 22, &start, &match), ZM_ERR_NONE);
    EXPECT_EQ(start, -1);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
}

TEST_F(KRXStorySuitesTest, ARangeListHoldsCopiesInTheOrderAppended) {
    KRXTextRangesRef list = nullptr;
    ASSERT_EQ(rangeLists->Create(&list), ZM_ERR_NONE);
    EXPECT_EQ(Size(rangeLists, list), 0);
    KRXTextRangeRef closing = RangeOf("closing");
    KRXTextRangeRef opening = RangeOf("opening");
    EXPECT_EQ(rangeLists->Append(list, closing), ZM_ERR_NONE);
    EXPECT_EQ(rangeLists->Append(list, opening), ZM_ERR_NONE);
    EXPECT_EQ(ranges->Release(closing), ZM_ERR_NONE);  // the list holds a copy
    EXPECT_EQ(ranges->Release(opening), ZM_ERR_NONE);
    EXPECT_EQ(Size(rangeLists, list), 2);
    KRXTextRangesIteratorRef iterator = nullptr;
    ASSERT_EQ(rangesIterators->Create(list, &iterator), ZM_ERR_NONE);
    EXPECT_EQ(Texts(rangesIterators, iterator),
              (Strings{"Second story", "Hello, brave new world"}));
    KRXTextRangeRef item = nullptr;
    EXPECT_EQ(rangeLists->Item(list, 2, &item), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(rangeLists->Append(list, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(rangeLists->Append(list, closing), ZM_ERR_BAD_ARGUMENT);  // released
    EXPECT_EQ(rangeLists->Create(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Size(rangeLists, list), 2);
    EXPECT_EQ(rangeLists->Release(list), ZM_ERR_NONE);
}

}  // namespace
}  // namespace zm::host
