#include "ostui/ThemeFont.hpp"

#include "ostui/FontLocator.hpp"

#include <map>
#include <mutex>

namespace ostui {

float ThemeFont::SizeOf(ThemeFontSize size) {
    switch (size) {
        case ThemeFontSize::Small:
            return kSmallSize;
        case ThemeFontSize::Regular:
            return kRegularSize;
        case ThemeFontSize::Large:
            return kLargeSize;
    }
    return kSmallSize;
}

ThemeFont ThemeFont::Get(ThemeFontSize size) {
    static std::mutex mutex;
    static std::map<ThemeFontSize, std::shared_ptr<const FontFace>> faces;
    std::lock_guard lock(mutex);
    auto& face = faces[size];
    if (!face) {
        face = std::make_shared<const FontFace>(FindFontFile(kFamily), SizeOf(size));
    }
    return ThemeFont(size, face);
}

}  // namespace ostui
