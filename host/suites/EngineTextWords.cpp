#include "suites/EngineTextWords.hpp"

#include "runtime/HostError.hpp"
#include "suites/EngineTextSlices.hpp"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <cstdint>

namespace zm::host {

std::vector<std::shared_ptr<const EngineText>> WordPieces(const EngineText& text) {
    const icu::UnicodeString plain = icu::UnicodeString::fromUTF8(PlainText(text));
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::BreakIterator> breaks(
        icu::BreakIterator::createWordInstance(icu::Locale::getRoot(), status));
    if (U_FAILURE(status)) {
        throw HostError(ZM_ERR_INTERNAL, "no word break rules");
    }
    breaks->setText(plain);
    std::vector<std::shared_ptr<const EngineText>> words;
    int32_t start = breaks->first();
    for (int32_t end = breaks->next(); end != icu::BreakIterator::DONE;
         start = end, end = breaks->next()) {
        // The status of the segment that ends at end: "none" is blanks and punctuation.
        if (breaks->getRuleStatus() == UBRK_WORD_NONE) {
            continue;
        }
        // ICU counts UTF-16 units; the engine counts code points.
        const int64_t first = plain.countChar32(0, start);
        const int64_t last = first + plain.countChar32(start, end - start);
        words.push_back(SliceEngineText(text, first, last));
    }
    return words;
}

}  // namespace zm::host
