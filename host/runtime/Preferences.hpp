#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace zm::host {

// Host preferences: text values by key, read back as the type the reader asks for. The
// command sets them from --pref KEY=VALUE; plug-ins read and write them through the
// preference suite.
class Preferences {
public:
    // The key of a preference named by a prefix and a suffix: "prefix/suffix", or the suffix
    // alone when there is no prefix.
    static std::string Key(const char* prefix, const char* suffix);

    void Set(std::string key, std::string text);
    void SetBoolean(std::string key, bool value);
    void SetInteger(std::string key, int32_t value);
    void SetReal(std::string key, double value);

    // Each getter gives nothing for an absent key and throws HostError(ZM_ERR_WRONG_TYPE)
    // when the text does not read as the type asked for.
    std::optional<std::string> Text(const std::string& key) const;
    // "true" or "1", "false" or "0".
    std::optional<bool> Boolean(const std::string& key) const;
    // Decimal, within 32 bits.
    std::optional<int32_t> Integer(const std::string& key) const;
    std::optional<double> Real(const std::string& key) const;

private:
    std::map<std::string, std::string, std::less<>> values_;
};

}  // namespace zm::host
