#pragma once

#include <cstdint>
#include <string>

namespace zm::host::fonts {

// Outline technologies, by the host's codes.
enum class FontTechnology : int32_t { PostScript = 0, TrueType = 1, Other = 2 };

// What the catalogue tells about one font.
struct FontFacts {
    std::string postScriptName;
    std::string fullName;     // UTF-8
    std::string windowsName;  // UTF-8: the family a Windows system lists the font under
    FontTechnology technology = FontTechnology::Other;
    int32_t script = -1;  // the host's script codes; -1 unknown
    bool installed = false;
    bool cid = false;
    bool openType = false;  // an sfnt holding CFF outlines
    bool bitmap = false;
    bool type1 = false;
    // The program has a full name of its own that differs from its PostScript name.
    bool alternateName = false;
};

}  // namespace zm::host::fonts
