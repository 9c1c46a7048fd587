#include "localization/Localizer.hpp"

#include "runtime/HostError.hpp"

#include <unicode/locid.h>

#include <array>

namespace zm::host {

namespace {
constexpr std::string_view kKeyPrefix = "$$$/";
constexpr std::array<std::string_view, 2> kPlatformTags = {"/Win", "/Mac"};

std::string_view WithoutPlatformTag(std::string_view name) {
    for (std::string_view tag : kPlatformTags) {
        if (name.size() > tag.size() && name.substr(name.size() - tag.size()) == tag) {
            return name.substr(0, name.size() - tag.size());
        }
    }
    return name;
}
}  // namespace

bool Localizer::IsWellFormedTag(std::string_view tag) {
    if (tag.empty()) {
        return false;
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale locale = icu::Locale::forLanguageTag(
        icu::StringPiece(tag.data(), static_cast<int32_t>(tag.size())), status);
    return U_SUCCESS(status) && !locale.isBogus();
}

void Localizer::SetLocale(std::string tag) {
    if (!IsWellFormedTag(tag)) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not a locale tag: " + tag);
    }
    locale_ = std::move(tag);
}

void Localizer::AddTranslation(std::string keyName, std::string text) {
    translations_[std::string(WithoutPlatformTag(keyName))] = std::move(text);
}

std::string Localizer::Localize(std::string_view key) const {
    if (key.substr(0, kKeyPrefix.size()) != kKeyPrefix) {
        return std::string(key);
    }
    std::size_t equals = key.find('=');
    std::string_view name = key.substr(0, equals);
    auto found = translations_.find(WithoutPlatformTag(name));
    if (found != translations_.end()) {
        return found->second;
    }
    return equals == std::string_view::npos ? std::string() : std::string(key.substr(equals + 1));
}

}  // namespace zm::host
