#include "plugins/tolvane/StandInSuites.hpp"

#include <document/Document.hpp>
#include <runtime/HostError.hpp>
#include <runtime/Runtime.hpp>
#include <registry/SuiteRegistry.hpp>
#include <suites/ColorProfileHandle.hpp>
#include <suites/SuiteRegistrations.hpp>
#include <suites/TextResourcesObject.hpp>
#include <suites/UnicodeStringHandle.hpp>

#include <shell/SuiteSet.hpp>

#include <array>
#include <cmath>
#include <cstdio>
#include <string>

namespace zm::test {

namespace {

using host::document::Document;

struct Unit {
    const char* name;
    const char* abbreviation;
    double points;  // points per unit
};

// By the document suite's ruler unit codes.
constexpr std::array<Unit, 6> kUnits = {{{"Points", "pt", 1.0},
                                         {"Pixels", "px", 0.75},
                                         {"Inches", "in", 72.0},
                                         {"Millimeters", "mm", 72.0 / 25.4},
                                         {"Centimeters", "cm", 72.0 / 2.54},
                                         {"Picas", "pc", 12.0}}};

template <typename Body>
ZMErr Answer(Body&& body) {
    try {
        body(host::Runtime::Current());
        return ZM_ERR_NONE;
    } catch (const host::HostError& error) {
        return error.Code();
    }
}

const Document& Current(host::Runtime& runtime) {
    Document* document = runtime.documents.Current();
    if (document == nullptr) {
        throw host::HostError(ZM_ERR_NO_DOCUMENT, "no document");
    }
    return *document;
}

const Unit& CurrentUnit(host::Runtime& runtime) {
    return kUnits.at(static_cast<std::size_t>(Current(runtime).rulerUnits));
}

ZMErr ZM_API GetUnitsString(int16_t format, ZMUnicodeString units) {
    return Answer([&](host::Runtime& runtime) {
        if (format != ZM_UNITS_FORMAT_NAME) {
            throw host::HostError(ZM_ERR_BAD_ARGUMENT, "unknown format");
        }
        host::AssignUtf8(units, CurrentUnit(runtime).name);
    });
}

ZMErr ZM_API FormatValueInUnits(double value, int16_t /*precision: the default*/,
                                ZMUnicodeString text) {
    return Answer([&](host::Runtime& runtime) {
        const Unit& unit = CurrentUnit(runtime);
        std::array<char, 64> number{};
        std::snprintf(number.data(), number.size(), "%.3f", value / unit.points);
        std::string digits = number.data();
        digits.erase(digits.find_last_not_of('0') + 1);
        if (digits.back() == '.') {
            digits.pop_back();
        }
        host::AssignUtf8(text, digits + " " + unit.abbreviation);
    });
}

ZMErr ZM_API GetProfileName(ZMColorProfile profile, ZMUnicodeString name) {
    return Answer([&](host::Runtime& runtime) {
        host::AssignUtf8(name, host::RequireProfileName(Current(runtime), profile));
    });
}

ZMErr ZM_API GetHighlightSubstitutedFonts(ZMTextResourcesRef resources, uint8_t* highlight) {
    return Answer([&](host::Runtime& runtime) {
        *highlight = host::RequireTextResources(runtime, resources).highlightSubstitutedFonts;
    });
}

ZMErr ZM_API GetHighlightSubstitutedGlyphs(ZMTextResourcesRef resources, uint8_t* highlight) {
    return Answer([&](host::Runtime& runtime) {
        *highlight = host::RequireTextResources(runtime, resources).highlightSubstitutedGlyphs;
    });
}

// Whether the host still offers the suite without entries.
bool Pending(const char* name, int32_t version) {
    static const host::SuiteRegistry pending = [] {
        host::SuiteRegistry registry;
        host::RegisterPendingSuites(registry);
        return registry;
    }();
    return pending.Find(name, version) != nullptr;
}

}  // namespace

void InstallStandInSuites() {
    static ZMUserSuite user{};
    if (tolvane::sUserSuite->GetUnitsString == nullptr) {
        user = *tolvane::sUserSuite;  // the host's alerts stay
        user.GetUnitsString = GetUnitsString;
        user.FormatValueInUnits = FormatValueInUnits;
        tolvane::sUserSuite = &user;
    }
    static const ZMColorConversionSuite conversion = {GetProfileName};
    if (Pending(ZM_OVERRIDE_COLOR_CONVERSION_SUITE_NAME,
                ZM_OVERRIDE_COLOR_CONVERSION_SUITE_VERSION)) {
        tolvane::sOverrideColorConversionSuite = &conversion;
    }
    static const ZMKRXDocumentTextResourcesSuite textResources = {
        GetHighlightSubstitutedFonts, GetHighlightSubstitutedGlyphs};
    if (Pending(ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_NAME,
                ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_VERSION)) {
        tolvane::sKrxDocumentTextResourcesSuite = &textResources;
    }
}

}  // namespace zm::test
