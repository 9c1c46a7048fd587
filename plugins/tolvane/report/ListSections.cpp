#include "report/ListSections.hpp"

#include "panel/PanelCategories.hpp"
#include "report/ReportLists.hpp"
#include "report/StringGroups.hpp"
#include "survey/SurveyRecord.hpp"

#include <algorithm>

namespace tolvane {

namespace {

constexpr ListSection kSections[] = {
    {kModeGraphicStyles, &SurveyLists::graphicStyleList, kTitleGraphicStyles, true},
    {kModeBrushes, &SurveyLists::brushList, kTitleBrushes, false},
    {kModeSpotColors, &SurveyLists::spotColorList, kTitleSpotColors, false},
    {kModePatterns, &SurveyLists::patternList, kTitlePatterns, false},
    {kModeGradients, &SurveyLists::gradientList, kTitleGradients, false},
    {kModeFonts, &SurveyLists::fontList, kTitleFonts, false},
    {kModeLinkedImages, &SurveyLists::linkedImageList, kTitleLinkedImages, false},
    {kModeEmbeddedImages, &SurveyLists::embeddedImageList, kTitleEmbeddedImages, false},
    {kModeFontDetails, &SurveyLists::fontDetailList, kTitleFontDetails, false},
};

}  // namespace

std::span<const ListSection> ListSections() { return kSections; }

const ListSection* ListSectionOf(int16_t mode) {
    const ListSection* found = std::find_if(std::begin(kSections), std::end(kSections),
                                            [&](const ListSection& s) { return s.mode == mode; });
    return found == std::end(kSections) ? nullptr : found;
}

ZMErr WriteListSection(ReportText& text, const ListSection& section) {
    const SurveyStringList& list = gSurvey->lists.*section.list;
    return section.counted ? AppendCountList(text, list, section.title)
                           : AppendNameList(text, list, section.title);
}

}  // namespace tolvane
