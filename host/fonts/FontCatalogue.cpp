#include "fonts/FontCatalogue.hpp"

#include "fonts/FontProgramFacts.hpp"
#include "fonts/MissingFontFacts.hpp"
#include "runtime/HostError.hpp"

#include <utility>

namespace zm::host::fonts {

FontCatalogue::FontCatalogue(std::vector<std::filesystem::path> files)
    : matcher_(std::move(files)) {}

const CatalogueFont& FontCatalogue::Find(const FontRequest& request) {
    if (auto known = fonts_.find(request); known != fonts_.end()) {
        return *known->second;
    }
    auto font = std::make_unique<CatalogueFont>();
    font->request = request;
    if (std::optional<FontLocation> location = matcher_.Match(request)) {
        if (const OpenProgram* open = Open(*location)) {
            font->program = open->program.get();
            font->facts = open->facts;
        }
    }
    if (font->program == nullptr) {
        font->facts = MissingFontFacts(request);
    }
    const CatalogueFont& found = *font;
    fontAddresses_.insert(&found);
    fonts_.emplace(request, std::move(font));
    return found;
}

const FontCatalogue::OpenProgram* FontCatalogue::Open(const FontLocation& location) {
    if (auto open = programs_.find(location); open != programs_.end()) {
        return &open->second;
    }
    OpenProgram open;
    try {
        open.program = std::make_unique<FontProgram>(location.file, location.faceIndex);
    } catch (const HostError& error) {
        if (error.Code() != ZM_ERR_NOT_FOUND) {
            throw;
        }
        return nullptr;  // a file fontconfig lists but FreeType cannot read serves no font
    }
    open.facts = ReadFontFacts(*open.program);
    programAddresses_.insert(open.program.get());
    return &programs_.emplace(location, std::move(open)).first->second;
}

const CatalogueFont& FontCatalogue::RequireFont(const void* key) const {
    if (fontAddresses_.count(key) == 0) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not a font key of the catalogue");
    }
    return *static_cast<const CatalogueFont*>(key);
}

const FontProgram& FontCatalogue::RequireProgram(const void* program) const {
    if (programAddresses_.count(program) == 0) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not a font program of the catalogue");
    }
    return *static_cast<const FontProgram*>(program);
}

}  // namespace zm::host::fonts
