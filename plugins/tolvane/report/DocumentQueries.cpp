#include "report/DocumentQueries.hpp"

#include "report/Error.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

namespace {

// The entry of a table, or ZM_ERR_SUITE_NOT_FOUND when the host leaves it empty.
template <typename Entry>
Entry Require(Entry entry) {
    if (entry == nullptr) {
        throw zm::Error(ZM_ERR_SUITE_NOT_FOUND);
    }
    return entry;
}

}  // namespace

HostString RulerUnitsName() {
    HostString name = HostString::Empty();
    zm::Check(Require(sUserSuite->GetUnitsString)(ZM_UNITS_FORMAT_PLURAL, name.Get()));
    return name;
}

HostString FormatInRulerUnits(double value) {
    HostString text = HostString::Empty();
    zm::Check(Require(sUserSuite->FormatUnits)(value, ZM_UNITS_DEFAULT_PRECISION, text.Get()));
    return text;
}

HostString ColorProfileName(ZMColorProfile profile) {
    HostString name = HostString::Empty();
    zm::Check(Require(sOverrideColorConversionSuite->GetProfileName)(profile, name.Get()));
    return name;
}

HighlightFlags GetHighlightFlags(ZMTextResourcesRef resources) {
    HighlightFlags flags;
    zm::Check(Require(sKrxDocumentTextResourcesSuite->GetHighlightSubstitutedFonts)(
        resources, &flags.substitutedFonts));
    zm::Check(Require(sKrxDocumentTextResourcesSuite->GetHighlightSubstitutedGlyphs)(
        resources, &flags.substitutedGlyphs));
    return flags;
}

}  // namespace tolvane
