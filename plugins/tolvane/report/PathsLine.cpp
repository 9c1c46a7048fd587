#include "report/PathsLine.hpp"

#include "report/LoadTolvaneString.hpp"
#include "report/PathLengthText.hpp"

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <string>

namespace tolvane {

namespace {

// ResObject words of the parenthesis.
constexpr int16_t kPoints = 2;
constexpr int16_t kOpen = 25;
constexpr int16_t kClosed = 26;
constexpr int16_t kLength = 27;

// The words go into the line as UTF-8 bytes and the line comes back from them.
std::string Word(int16_t index) {
    return ToBytes(LoadTolvaneString(ResObject, index).Get(), ZM_ENCODING_UTF8);
}

// printf into a string of the size the text needs; the compiler checks each call's format.
__attribute__((format(printf, 1, 2))) std::string Printed(const char* format, ...) {
    std::va_list values;
    va_start(values, format);
    std::va_list measuring;
    va_copy(measuring, values);
    const int size = std::vsnprintf(nullptr, 0, format, measuring);
    va_end(measuring);
    std::string text(static_cast<std::size_t>(size > 0 ? size : 0), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, values);
    va_end(values);
    return text;
}

}  // namespace

HostString PathsValue(const SurveyRecord& record, ZMUnicodeString none) {
    if (record.pathCount < 1) {
        return HostString::Copy(none);
    }
    const std::string points = Word(kPoints);
    const std::string open = Word(kOpen);
    const std::string closed = Word(kClosed);
    const std::string length = Word(kLength);

    if (record.pointCount < 0) {
        return MakeUnicodeFromBytes(Printed("%ld", static_cast<long>(record.pathCount)).c_str(),
                                    ZM_ENCODING_UTF8);
    }
    const std::string lengthText =
        ToBytes(PathLengthText(record.totalPathLength).Get(), ZM_ENCODING_UTF8);
    // The survey does not count closed paths; they are what is not open.
    const auto closedCount =
        static_cast<int>(static_cast<int64_t>(record.pathCount) - record.openPathCount);
    const std::string value = Printed(
        "%d (%d %s, %d %s, %d %s, %s = %s)", static_cast<int>(record.pathCount),
        static_cast<int>(record.openPathCount), open.c_str(), closedCount, closed.c_str(),
        static_cast<int>(record.pointCount), points.c_str(), length.c_str(), lengthText.c_str());
    return MakeUnicodeFromBytes(value.c_str(), ZM_ENCODING_UTF8);
}

}  // namespace tolvane
