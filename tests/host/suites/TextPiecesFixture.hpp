#pragma once

#include "host/suites/TextEngineFixture.hpp"

#include <zelmora/KRXTextRangeSuites.h>

#include <cstdint>
#include <string>
#include <vector>

namespace zm::test {

// The text engine's fixture with ways to read ranges and walk the engine's iterators.
class TextPiecesFixture : public TextEngineFixture {
protected:
    // The range's text; the range stays the caller's.
    std::string Text(KRXTextRangeRef range) {
        char buffer[256] = {};
        EXPECT_EQ(ranges->GetContents(range, buffer, sizeof buffer), ZM_ERR_NONE);
        return buffer;
    }

    // What an iterator hands out, each item read by read and given back with release; the
    // iterator is walked to its end and released.
    template <typename Item, typename Suite, typename Iterator, typename Read>
    auto Walk(const Suite* suite, Iterator iterator, Read read, ZMErr(ZM_API* release)(Item)) {
        std::vector<decltype(read(Item{}))> items;
        for (int32_t done = 0; suite->IsDone(iterator, &done) == ZM_ERR_NONE && done == 0;) {
            Item item = nullptr;
            EXPECT_EQ(suite->Item(iterator, &item), ZM_ERR_NONE);
            items.push_back(read(item));
            EXPECT_EQ(release(item), ZM_ERR_NONE);
            EXPECT_EQ(suite->Next(iterator), ZM_ERR_NONE);
        }
        EXPECT_EQ(suite->Release(iterator), ZM_ERR_NONE);
        return items;
    }

    // The texts of the ranges an iterator over ranges hands out.
    template <typename Suite, typename Iterator>
    std::vector<std::string> Texts(const Suite* suite, Iterator iterator) {
        return Walk(
            suite, iterator, [&](KRXTextRangeRef range) { return Text(range); },
            ranges->Release);
    }

};

}  // namespace zm::test
