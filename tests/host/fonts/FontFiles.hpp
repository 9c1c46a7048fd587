#pragma once

// Font files of the Debian packages the setup script installs: fonts-liberation2 (TrueType)
// and fonts-urw-base35, which ships each face both as OpenType CFF (.otf) and as Type 1 (.t1)
// and names each file for the face's PostScript name, as the FontName line of its .afm says.
namespace zm::test {

inline constexpr const char* kLiberationSansRegular =
    "/usr/share/fonts/truetype/liberation2/LiberationSans-Regular.ttf";
inline constexpr const char* kLiberationSansBold =
    "/usr/share/fonts/truetype/liberation2/LiberationSans-Bold.ttf";
inline constexpr const char* kNimbusSansBoldOpenType =
    "/usr/share/fonts/opentype/urw-base35/NimbusSans-Bold.otf";
inline constexpr const char* kNimbusSansBoldType1 =
    "/usr/share/fonts/type1/urw-base35/NimbusSans-Bold.t1";

}  // namespace zm::test
