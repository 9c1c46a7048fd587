#pragma once

#include "fonts/FontRequest.hpp"

#include <compare>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

struct _FcConfig;

namespace zm::host::fonts {

// Where an installed font program is: a file and fontconfig's face index in it.
struct FontLocation {
    std::filesystem::path file;
    int32_t faceIndex = 0;

    friend auto operator<=>(const FontLocation&, const FontLocation&) = default;
};

// Finds the installed font program for a request through fontconfig.
class FontMatcher {
public:
    // The system's fonts and configuration, loaded when first asked.
    FontMatcher();
    // Exactly these font files, with no configuration: a catalogue that does not depend on
    // what the system has installed.
    explicit FontMatcher(std::vector<std::filesystem::path> files);
    ~FontMatcher();
    FontMatcher(const FontMatcher&) = delete;
    FontMatcher& operator=(const FontMatcher&) = delete;

    // The best program of the requested family, nothing when no program has that family:
    // fontconfig's match always offers some font, but one of another family does not count.
    // Throws HostError(ZM_ERR_INTERNAL) when fontconfig cannot be started.
    std::optional<FontLocation> Match(const FontRequest& request);

private:
    _FcConfig* Config();

    std::optional<std::vector<std::filesystem::path>> files_;  // none: the system's fonts
    _FcConfig* config_ = nullptr;
};

}  // namespace zm::host::fonts
