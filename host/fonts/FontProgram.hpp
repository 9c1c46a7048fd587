#pragma once

#include <cstdint>
#include <filesystem>

struct FT_LibraryRec_;
struct FT_FaceRec_;

namespace zm::host::fonts {

// One face of a font file, open in FreeType for as long as this object lives.
class FontProgram {
public:
    // faceIndex as fontconfig gives it: the face in a collection, a named instance of a
    // variable font in its upper bits. Throws HostError(ZM_ERR_NOT_FOUND) when FreeType cannot
    // open the face.
    FontProgram(const std::filesystem::path& file, int32_t faceIndex);
    ~FontProgram();
    FontProgram(const FontProgram&) = delete;
    FontProgram& operator=(const FontProgram&) = delete;

    FT_FaceRec_* Face() const { return face_; }

    // Design axes of a multiple-master or variable font, 0 for any other.
    int32_t DesignAxisCount() const;

    // The glyph the face's character map gives a Unicode code point; 0, the missing glyph,
    // when it maps none.
    uint32_t GlyphIndex(uint32_t codePoint) const;

private:
    FT_LibraryRec_* library_ = nullptr;
    FT_FaceRec_* face_ = nullptr;
};

}  // namespace zm::host::fonts
