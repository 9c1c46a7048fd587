#include "fonts/FontProgram.hpp"

#include "runtime/HostError.hpp"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_MULTIPLE_MASTERS_H

namespace zm::host::fonts {

FontProgram::FontProgram(const std::filesystem::path& file, int32_t faceIndex) {
    if (FT_Init_FreeType(&library_) != 0) {
        throw HostError(ZM_ERR_NO_MEMORY, "FreeType cannot be started");
    }
    if (FT_New_Face(library_, file.c_str(), faceIndex, &face_) != 0) {
        FT_Done_FreeType(library_);
        throw HostError(ZM_ERR_NOT_FOUND, file.string() + ": FreeType cannot open the font");
    }
}

FontProgram::~FontProgram() {
    FT_Done_Face(face_);
    FT_Done_FreeType(library_);
}

int32_t FontProgram::DesignAxisCount() const {
    if (!FT_HAS_MULTIPLE_MASTERS(face_)) {
        return 0;
    }
    FT_MM_Var* variation = nullptr;
    if (FT_Get_MM_Var(face_, &variation) != 0) {
        return 0;  // axes FreeType cannot read are none the host can offer
    }
    auto count = static_cast<int32_t>(variation->num_axis);
    FT_Done_MM_Var(library_, variation);
    return count;
}

uint32_t FontProgram::GlyphIndex(uint32_t codePoint) const {
    return FT_Get_Char_Index(face_, codePoint);
}

}  // namespace zm::host::fonts
