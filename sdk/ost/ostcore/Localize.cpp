#include "ostcore/Localize.hpp"

namespace ostcore {

std::string DefaultText(const std::string& key) {
    if (key.rfind("$$$/", 0) != 0) {
        return key;
    }
    std::size_t equals = key.find('=');
    return equals == std::string::npos ? std::string() : key.substr(equals + 1);
}

std::string Localize(const Localizer& localizer, const std::string& key) {
    return localizer ? localizer(key) : DefaultText(key);
}

}  // namespace ostcore
