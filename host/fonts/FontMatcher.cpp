#include "fonts/FontMatcher.hpp"

#include "runtime/HostError.hpp"

#include <fontconfig/fontconfig.h>

#include <memory>
#include <string>
#include <utility>

namespace zm::host::fonts {

namespace {

struct PatternDeleter {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, PatternDeleter>;

const FcChar8* Bytes(const std::string& text) {
    return reinterpret_cast<const FcChar8*>(text.c_str());
}

int SlantOf(FontSlant slant) {
    switch (slant) {
        case FontSlant::Italic:
            return FC_SLANT_ITALIC;
        case FontSlant::Oblique:
            return FC_SLANT_OBLIQUE;
        case FontSlant::Normal:
            break;
    }
    return FC_SLANT_ROMAN;
}

// Whether any of the match's family names is the one asked for, ignoring case as fontconfig
// does when it matches families.
bool HasFamily(const FcPattern* match, const std::string& family) {
    FcChar8* name = nullptr;
    for (int i = 0; FcPatternGetString(match, FC_FAMILY, i, &name) == FcResultMatch; ++i) {
        if (FcStrCmpIgnoreCase(name, Bytes(family)) == 0) {
            return true;
        }
    }
    return false;
}

}  // namespace

FontMatcher::FontMatcher() = default;

FontMatcher::FontMatcher(std::vector<std::filesystem::path> files) : files_(std::move(files)) {}

FontMatcher::~FontMatcher() {
    if (config_ != nullptr) {
        FcConfigDestroy(config_);
    }
}

FcConfig* FontMatcher::Config() {
    if (config_ != nullptr) {
        return config_;
    }
    if (!files_) {
        config_ = FcInitLoadConfigAndFonts();
    } else {
        config_ = FcConfigCreate();
        for (const std::filesystem::path& file : *files_) {
            // A file fontconfig cannot read adds nothing: its fonts are then not installed.
            FcConfigAppFontAddFile(config_, Bytes(file.string()));
        }
    }
    if (config_ == nullptr) {
        throw HostError(ZM_ERR_INTERNAL, "fontconfig cannot be started");
    }
    return config_;
}

std::optional<FontLocation> FontMatcher::Match(const FontRequest& request) {
    FcConfig* config = Config();
    Pattern wanted(FcPatternCreate());
    if (!wanted) {
        throw HostError(ZM_ERR_NO_MEMORY, "no memory for a font pattern");
    }
    FcPatternAddString(wanted.get(), FC_FAMILY, Bytes(request.family));
    FcPatternAddInteger(wanted.get(), FC_WEIGHT, FcWeightFromOpenType(request.weight));
    FcPatternAddInteger(wanted.get(), FC_SLANT, SlantOf(request.slant));
    FcConfigSubstitute(config, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    Pattern match(FcFontMatch(config, wanted.get(), &result));
    if (!match || result != FcResultMatch || !HasFamily(match.get(), request.family)) {
        return std::nullopt;
    }
    FcChar8* file = nullptr;
    int index = 0;
    if (FcPatternGetString(match.get(), FC_FILE, 0, &file) != FcResultMatch) {
        return std::nullopt;
    }
    FcPatternGetInteger(match.get(), FC_INDEX, 0, &index);  // absent: the first face
    return FontLocation{reinterpret_cast<const char*>(file), static_cast<int32_t>(index)};
}

}  // namespace zm::host::fonts
