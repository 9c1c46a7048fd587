#include "ostui/FontFace.hpp"

#include "ostui/FontError.hpp"

#include <ft2build.h>
#include FT_FREETYPE_H

namespace ostui {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr float kUnitsPer26Dot6 = 64.0f;

// Decodes one UTF-8 sequence at the front of `text` and drops it from `text`.
char32_t NextCodePoint(std::string_view& text) {
    auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    unsigned char lead = byte(0);
    std::size_t length = lead < 0x80 ? 1 : (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xE ? 3
                                        : (lead >> 3) == 0x1E ? 4 : 0;
    if (length == 0 || length > text.size()) {
        text.remove_prefix(1);
        return kReplacement;
    }
    char32_t codePoint = length == 1 ? lead : lead & (0x7F >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80) {
            text.remove_prefix(i);
            return kReplacement;
        }
        codePoint = (codePoint << 6) | (byte(i) & 0x3F);
    }
    text.remove_prefix(length);
    return codePoint;
}

}  // namespace

struct FontFace::FreeType {
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    ~FreeType() {
        if (face != nullptr) {
            FT_Done_Face(face);
        }
        if (library != nullptr) {
            FT_Done_FreeType(library);
        }
    }
};

FontFace::FontFace(const std::string& file, float pixelSize)
    : freeType_(std::make_unique<FreeType>()), file_(file), pixelSize_(pixelSize) {
    if (FT_Init_FreeType(&freeType_->library) != 0) {
        throw FontError("FreeType cannot be initialised");
    }
    if (FT_New_Face(freeType_->library, file.c_str(), 0, &freeType_->face) != 0) {
        throw FontError(file + ": FreeType cannot open the font");
    }
    // 72 dots per inch makes one point one pixel.
    if (FT_Set_Char_Size(freeType_->face, 0, static_cast<FT_F26Dot6>(pixelSize * 64.0f), 72,
                         72) != 0) {
        throw FontError(file + ": the font cannot be set at " + std::to_string(pixelSize) +
                        " px");
    }
}

FontFace::~FontFace() = default;

std::string FontFace::FamilyName() const {
    const char* name = freeType_->face->family_name;
    return name == nullptr ? std::string() : std::string(name);
}

float FontFace::LineHeight() const {
    return static_cast<float>(freeType_->face->size->metrics.height) / kUnitsPer26Dot6;
}

float FontFace::Ascender() const {
    return static_cast<float>(freeType_->face->size->metrics.ascender) / kUnitsPer26Dot6;
}

float FontFace::Advance(std::string_view utf8) const {
    float total = 0.0f;
    while (!utf8.empty()) {
        total += AdvanceOf(NextCodePoint(utf8));
    }
    return total;
}

float FontFace::AdvanceOf(char32_t codePoint) const {
    auto cached = advances_.find(codePoint);
    if (cached != advances_.end()) {
        return cached->second;
    }
    // A character the face lacks is drawn, and measured, as the face's missing glyph.
    float advance = 0.0f;
    if (FT_Load_Char(freeType_->face, codePoint, FT_LOAD_DEFAULT) == 0) {
        advance = static_cast<float>(freeType_->face->glyph->advance.x) / kUnitsPer26Dot6;
    }
    advances_.emplace(codePoint, advance);
    return advance;
}

}  // namespace ostui
