#pragma once

#include <map>
#include <string>
#include <string_view>

namespace zm::host {

// Resolves localizable keys "$$$/Group/Name[/Platform]=Default text". A key the current
// locale's dictionary translates gives the translation; any other gives the default text
// after the first "=". A text that is not a key is its own translation.
class Localizer {
public:
    void SetLocale(std::string tag) { locale_ = std::move(tag); }
    const std::string& Locale() const { return locale_; }

    // keyName is the part before "=", with or without its platform tag.
    void AddTranslation(std::string keyName, std::string text);
    std::string Localize(std::string_view key) const;

private:
    std::string locale_ = "en-US";
    std::map<std::string, std::string, std::less<>> translations_;
};

}  // namespace zm::host
