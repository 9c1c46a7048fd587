#include "fonts/MissingFontFacts.hpp"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace zm::host::fonts {

namespace {

// Weight names by hundreds, 100 to 900; 400 is regular and names nothing.
constexpr std::array<const char*, 9> kWeightNames = {
    "Thin", "ExtraLight", "Light", "", "Medium", "SemiBold", "Bold", "ExtraBold", "Black"};

const char* WeightName(int32_t weight) {
    // The nearest hundred, so 650 is bold and 649 semibold, as a font matcher would choose.
    int32_t hundreds = std::clamp((weight + 50) / 100, 1, 9);
    return kWeightNames[static_cast<std::size_t>(hundreds - 1)];
}

const char* SlantName(FontSlant slant) {
    switch (slant) {
        case FontSlant::Italic:
            return "Italic";
        case FontSlant::Oblique:
            return "Oblique";
        case FontSlant::Normal:
            break;
    }
    return "";
}

// The style's words, weight first: none for a regular upright font.
std::vector<std::string> StyleWords(const FontRequest& request) {
    std::vector<std::string> words;
    for (const char* word : {WeightName(request.weight), SlantName(request.slant)}) {
        if (*word != '\0') {
            words.emplace_back(word);
        }
    }
    return words;
}

}  // namespace

FontFacts MissingFontFacts(const FontRequest& request) {
    FontFacts facts;
    std::vector<std::string> style = StyleWords(request);

    std::string family = request.family;
    family.erase(std::remove(family.begin(), family.end(), ' '), family.end());
    facts.postScriptName = family;
    if (!style.empty()) {
        facts.postScriptName += '-';
        for (const std::string& word : style) {
            facts.postScriptName += word;
        }
    }

    facts.fullName = request.family;
    for (const std::string& word : style) {
        facts.fullName += ' ' + word;
    }
    facts.windowsName = request.family;
    return facts;
}

}  // namespace zm::host::fonts
