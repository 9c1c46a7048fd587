#include "suites/EngineTextSlices.hpp"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstddef>

namespace zm::host {

namespace {

// The byte offset of character index of UTF-8 text (its size past the last character).
int32_t ByteOffset(std::string_view text, int64_t index) {
    const auto length = static_cast<int32_t>(text.size());
    int32_t offset = 0;
    for (int64_t counted = 0; counted < index && offset < length; ++counted) {
        U8_FWD_1(text.data(), offset, length);
    }
    return offset;
}

std::vector<UChar32> CodePoints(std::string_view text) {
    std::vector<UChar32> points;
    const auto length = static_cast<int32_t>(text.size());
    for (int32_t offset = 0; offset < length;) {
        UChar32 point = 0;
        U8_NEXT(text.data(), offset, length, point);
        points.push_back(point);  // a malformed sequence gives a negative value of its own
    }
    return points;
}

}  // namespace

int64_t CountCodePoints(std::string_view text) {
    int64_t count = 0;
    const auto length = static_cast<int64_t>(text.size());
    for (int64_t index = 0; index < length; ++count) {
        U8_FWD_1(text.data(), index, length);
    }
    return count;
}

std::string PlainText(const EngineText& text) {
    std::string contents;
    for (const EngineRun& run : text.runs) {
        contents += run.text;
    }
    return contents;
}

std::shared_ptr<const EngineText> SliceEngineText(const EngineText& text, int64_t start,
                                                  int64_t end) {
    auto slice = std::make_shared<EngineText>();
    slice->frameType = text.frameType;
    int64_t runStart = 0;
    for (const EngineRun& run : text.runs) {
        const int64_t runSize = CountCodePoints(run.text);
        const int64_t from = std::max(start, runStart) - runStart;
        const int64_t to = std::min(end, runStart + runSize) - runStart;
        if (from < to) {
            EngineRun piece = run;
            const int32_t first = ByteOffset(run.text, from);
            const int32_t last = ByteOffset(run.text, to);
            piece.text = run.text.substr(static_cast<std::size_t>(first),
                                         static_cast<std::size_t>(last - first));
            slice->runs.push_back(std::move(piece));
        }
        runStart += runSize;
    }
    return slice;
}

std::vector<std::shared_ptr<const EngineText>> RunPieces(const EngineText& text) {
    std::vector<std::shared_ptr<const EngineText>> pieces;
    for (const EngineRun& run : text.runs) {
        if (!run.text.empty()) {
            auto piece = std::make_shared<EngineText>();
            piece->frameType = text.frameType;
            piece->runs.push_back(run);
            pieces.push_back(std::move(piece));
        }
    }
    return pieces;
}

std::vector<std::shared_ptr<const EngineText>> ParagraphPieces(const EngineText& text) {
    const std::vector<UChar32> points = CodePoints(PlainText(text));
    const auto size = static_cast<int64_t>(points.size());
    std::vector<std::shared_ptr<const EngineText>> pieces;
    int64_t start = 0;
    for (int64_t index = 0; index < size; ++index) {
        const UChar32 point = points[static_cast<std::size_t>(index)];
        bool breaks = point == 0x0A || point == 0x2029;
        if (point == 0x0D) {
            // CR LF is one break: the paragraph ends after the LF.
            const bool lineFeedFollows =
                index + 1 < size && points[static_cast<std::size_t>(index + 1)] == 0x0A;
            breaks = !lineFeedFollows;
        }
        if (breaks) {
            pieces.push_back(SliceEngineText(text, start, index + 1));
            start = index + 1;
        }
    }
    if (start < size) {
        pieces.push_back(SliceEngineText(text, start, size));
    }
    return pieces;
}

std::optional<int64_t> FindCharacters(const EngineText& text, std::string_view needle,
                                      int64_t from) {
    const std::vector<UChar32> haystack = CodePoints(PlainText(text));
    const std::vector<UChar32> wanted = CodePoints(needle);
    if (wanted.empty() || from < 0 || from > static_cast<int64_t>(haystack.size())) {
        return std::nullopt;
    }
    auto found = std::search(haystack.begin() + from, haystack.end(), wanted.begin(), wanted.end());
    if (found == haystack.end()) {
        return std::nullopt;
    }
    return found - haystack.begin();
}

}  // namespace zm::host
