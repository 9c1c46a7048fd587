#include "suites/SuiteRegistrations.hpp"

#include "suites/EngineIteratorSuite.hpp"
#include "suites/EngineTextSlices.hpp"
#include "suites/EngineTextWords.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXTextRangeSuites.h>

#include <memory>
#include <vector>

namespace zm::host {

namespace {

std::vector<TextRangeObject> RangesOf(const std::vector<std::shared_ptr<const EngineText>>& texts) {
    return {texts.begin(), texts.end()};
}

std::vector<TextRangeObject> ListedRanges(Runtime&, const TextRangesObject& list) {
    return list.values;
}

std::vector<TextRangeObject> Runs(Runtime&, const TextRangeObject& range) {
    return RangesOf(RunPieces(*range.text));
}

std::vector<TextRangeObject> Words(Runtime&, const TextRangeObject& range) {
    return RangesOf(WordPieces(*range.text));
}

using RangesIterator =
    EngineIteratorSuite<ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_NAME, KRXTextRangesIteratorSuite,
                        KRXTextRangesIteratorRef, KRXTextRangesRef, KRXTextRangeRef, ListedRanges>;
using RunsIterator =
    EngineIteratorSuite<ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_NAME, KRXTextRunsIteratorSuite,
                        KRXTextRunsIteratorRef, KRXTextRangeRef, KRXTextRangeRef, Runs>;
using WordsIterator =
    EngineIteratorSuite<ZM_KRX_WORDS_ITERATOR_SUITE_NAME, KRXWordsIteratorSuite,
                        KRXWordsIteratorRef, KRXTextRangeRef, KRXTextRangeRef, Words>;

}  // namespace

void RegisterKRXTextRangeIteratorSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_NAME,
                 ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_VERSION, &RangesIterator::kTable);
    registry.Add(ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_NAME, ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_VERSION,
                 &RunsIterator::kTable);
    registry.Add(ZM_KRX_WORDS_ITERATOR_SUITE_NAME, ZM_KRX_WORDS_ITERATOR_SUITE_VERSION,
                 &WordsIterator::kTable);
}

}  // namespace zm::host
