#include "runtime/Preferences.hpp"

#include "runtime/HostError.hpp"

#include <charconv>
#include <system_error>

namespace zm::host {

namespace {

// The whole text as a number of type Number, or a wrong-type error naming the key.
template <typename Number>
Number ParseNumber(const std::string& key, const std::string& text) {
    Number value{};
    const char* end = text.data() + text.size();
    auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end) {
        throw HostError(ZM_ERR_WRONG_TYPE, "preference " + key + " is not a number: " + text);
    }
    return value;
}

}  // namespace

std::string Preferences::Key(const char* prefix, const char* suffix) {
    std::string key;
    if (prefix != nullptr) {
        key = prefix;
        key += '/';
    }
    if (suffix != nullptr) {
        key += suffix;
    }
    return key;
}

void Preferences::Set(std::string key, std::string text) {
    values_.insert_or_assign(std::move(key), std::move(text));
}

void Preferences::SetBoolean(std::string key, bool value) {
    Set(std::move(key), value ? "true" : "false");
}

void Preferences::SetInteger(std::string key, int32_t value) {
    Set(std::move(key), std::to_string(value));
}

void Preferences::SetReal(std::string key, double value) {
    // The shortest text that reads back as the same double.
    char buffer[32];
    auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
    (void)error;  // 32 characters hold every double
    Set(std::move(key), std::string(buffer, end));
}

std::optional<std::string> Preferences::Text(const std::string& key) const {
    auto found = values_.find(key);
    if (found == values_.end()) {
        return std::nullopt;
    }
    return found->second;
}

std::optional<bool> Preferences::Boolean(const std::string& key) const {
    std::optional<std::string> text = Text(key);
    if (!text) {
        return std::nullopt;
    }
    if (*text == "true" || *text == "1") {
        return true;
    }
    if (*text == "false" || *text == "0") {
        return false;
    }
    throw HostError(ZM_ERR_WRONG_TYPE, "preference " + key + " is not a boolean: " + *text);
}

std::optional<int32_t> Preferences::Integer(const std::string& key) const {
    std::optional<std::string> text = Text(key);
    if (!text) {
        return std::nullopt;
    }
    return ParseNumber<int32_t>(key, *text);
}

std::optional<double> Preferences::Real(const std::string& key) const {
    std::optional<std::string> text = Text(key);
    if (!text) {
        return std::nullopt;
    }
    return ParseNumber<double>(key, *text);
}

}  // namespace zm::host
