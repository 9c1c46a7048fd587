#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zm::test {

// Whether text is a date as asctime writes it, without its line end: 24 characters,
// "Www Mmm dd hh:mm:ss yyyy", the day padded with a blank.
bool IsAsctimeStamp(std::string_view text);

// The saved report's heading is "Document Info - ", the asctime date with its own "\n", then
// "\r\n". What follows the heading once `after` is cut too; nothing when the text does not
// start that way.
std::optional<std::string> AfterReportHeading(const std::string& text, std::string_view after);

}  // namespace zm::test
