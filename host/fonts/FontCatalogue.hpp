#pragma once

#include "fonts/FontFacts.hpp"
#include "fonts/FontMatcher.hpp"
#include "fonts/FontProgram.hpp"
#include "fonts/FontRequest.hpp"

#include <filesystem>
#include <map>
#include <memory>
#include <unordered_set>
#include <vector>

namespace zm::host::fonts {

// One font of the catalogue; its address is the font's key.
struct CatalogueFont {
    FontRequest request;
    FontFacts facts;
    const FontProgram* program = nullptr;  // null when the font is not installed
};

// The host's fonts: every request met so far, each once, resolved to an installed program
// or to a font that is not installed. Keys and programs live as long as the catalogue.
class FontCatalogue {
public:
    // The system's fonts; nothing is loaded before the first request.
    FontCatalogue() = default;
    // Exactly these font files.
    explicit FontCatalogue(std::vector<std::filesystem::path> files);

    // The same request always gives the same font.
    const CatalogueFont& Find(const FontRequest& request);

    // HostError(ZM_ERR_BAD_ARGUMENT) for an address the catalogue never gave out.
    const CatalogueFont& RequireFont(const void* key) const;
    const FontProgram& RequireProgram(const void* program) const;

private:
    struct OpenProgram {
        std::unique_ptr<FontProgram> program;
        FontFacts facts;
    };

    // The program at a location, opened and read once; null when FreeType cannot read it.
    const OpenProgram* Open(const FontLocation& location);

    FontMatcher matcher_;
    std::map<FontRequest, std::unique_ptr<CatalogueFont>> fonts_;
    std::map<FontLocation, OpenProgram> programs_;
    std::unordered_set<const void*> fontAddresses_;
    std::unordered_set<const void*> programAddresses_;
};

}  // namespace zm::host::fonts
