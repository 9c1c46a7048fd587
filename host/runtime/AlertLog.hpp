#pragma once

#include <string>
#include <vector>

namespace zm::host {

enum class AlertKind { Error, Warning, Message };

// A headless host cannot show a modal alert; it records each one, whole, in order.
struct Alert {
    AlertKind kind;
    std::string text;  // UTF-8, exactly as the plug-in built it
};

const char* AlertKindName(AlertKind kind);

using AlertLog = std::vector<Alert>;

}  // namespace zm::host
