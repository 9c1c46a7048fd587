#include "ostui/FontLocator.hpp"

#include "ostui/FontError.hpp"

#include <fontconfig/fontconfig.h>

#include <memory>

namespace ostui {

namespace {

struct PatternDeleter {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, PatternDeleter>;

}  // namespace

std::string FindFontFile(const std::string& family) {
    if (!FcInit()) {
        throw FontError("fontconfig cannot be initialised");
    }
    Pattern wanted(FcPatternCreate());
    FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
    FcPatternAddInteger(wanted.get(), FC_WEIGHT, FC_WEIGHT_REGULAR);
    FcPatternAddInteger(wanted.get(), FC_SLANT, FC_SLANT_ROMAN);
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    Pattern match(FcFontMatch(nullptr, wanted.get(), &result));
    if (!match || result != FcResultMatch) {
        throw FontError("font \"" + family + "\": no installed font matches");
    }
    // fontconfig always offers something; only the family asked for will do.
    FcChar8* matchedFamily = nullptr;
    if (FcPatternGetString(match.get(), FC_FAMILY, 0, &matchedFamily) != FcResultMatch ||
        FcStrCmpIgnoreCase(matchedFamily, reinterpret_cast<const FcChar8*>(family.c_str())) != 0) {
        throw FontError("font \"" + family + "\" is not installed");
    }
    FcChar8* file = nullptr;
    if (FcPatternGetString(match.get(), FC_FILE, 0, &file) != FcResultMatch) {
        throw FontError("font \"" + family + "\": fontconfig names no file");
    }
    return reinterpret_cast<const char*>(file);
}

}  // namespace ostui
