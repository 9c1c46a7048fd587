#include "suites/FontKeys.hpp"

#include "runtime/HostError.hpp"

#include <optional>
#include <string>

namespace zm::host {

namespace {

constexpr int32_t kMinWeight = 1;
constexpr int32_t kMaxWeight = 1000;

}  // namespace

const fonts::CatalogueFont& FindCatalogueFont(fonts::FontCatalogue& catalogue,
                                              std::string_view family, int32_t weight,
                                              std::string_view style) {
    std::optional<fonts::FontSlant> slant = fonts::SlantFromText(style);
    if (family.empty() || weight < kMinWeight || weight > kMaxWeight || !slant) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not a font request");
    }
    return catalogue.Find({std::string(family), weight, *slant});
}

}  // namespace zm::host
