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
    // A BCP 47 tag ("en-US", "de-DE"); throws HostError(ZM_ERR_BAD_ARGUMENT) for text that is
    // not one. The tag also picks the conventions numbers are formatted with.
    void SetLocale(std::string tag);
    static bool IsWellFormedTag(std::string_view tag);
    const std::string& Locale() const { return locale_; }

    // keyName is the part before "=", with or without its platform tag.
    void AddTranslation(std::string keyName, std::string text);
    std::string Localize(std::string_view key) const;

private:
    std::string locale_ = "en-US";
    std::map<std::string, std::string, std::less<>> translations_;
};

}  // namespace zm::host
