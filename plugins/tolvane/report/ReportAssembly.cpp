#include "report/ReportAssembly.hpp"

#include "report/DocumentSection.hpp"
#include "report/Error.hpp"
#include "report/LoadTolvaneString.hpp"
#include "report/ObjectsSection.hpp"
#include "report/ReportBuffer.hpp"
#include "report/ReportLists.hpp"
#include "shell/AppContext.hpp"
#include "survey/SurveyRecord.hpp"

#include <ctime>

namespace tolvane {

namespace {

constexpr int16_t kModeDocumentInfo = 1;  // ResMode

// "Document Info - " and the local time as asctime writes it, its own "\n" included, then
// "\r\n". The saved report carries this heading whether it covers the document or the
// selection.
HostString Heading() {
    HostString heading = LoadTolvaneString(ResMode, kModeDocumentInfo);
    heading.Append(MakeUnicodeFromBytes(" - ", ZM_ENCODING_PLATFORM));
    std::time_t now = std::time(nullptr);
    std::tm local{};
    char stamp[32] = {};
    if (localtime_r(&now, &local) == nullptr || asctime_r(&local, stamp) == nullptr) {
        throw zm::Error(ZM_ERR_CANT);
    }
    heading.Append(MakeUnicodeFromBytes(stamp, ZM_ENCODING_PLATFORM));
    heading.Append(LineBreak());
    return heading;
}

using SectionWriter = ZMErr (*)(ReportText&);

ZMErr WriteGraphicStyles(ReportText& text) {
    return AppendCountList(text, gSurvey->lists.graphicStyleList, kTitleGraphicStyles);
}

// One name-list section per list, each under its own title.
template <SurveyStringList SurveyLists::*list, int16_t title>
ZMErr WriteNames(ReportText& text) {
    return AppendNameList(text, gSurvey->lists.*list, title);
}

constexpr SectionWriter kSections[] = {
    AppendDocumentSection,
    WriteObjectsSection,
    WriteGraphicStyles,
    WriteNames<&SurveyLists::brushList, kTitleBrushes>,
    WriteNames<&SurveyLists::spotColorList, kTitleSpotColors>,
    WriteNames<&SurveyLists::patternList, kTitlePatterns>,
    WriteNames<&SurveyLists::gradientList, kTitleGradients>,
    WriteNames<&SurveyLists::fontList, kTitleFonts>,
    WriteNames<&SurveyLists::linkedImageList, kTitleLinkedImages>,
    WriteNames<&SurveyLists::embeddedImageList, kTitleEmbeddedImages>,
    WriteNames<&SurveyLists::fontDetailList, kTitleFontDetails>,
};

}  // namespace

ZMErr AssembleReport(ReportText& text) {
    ScopedAppContext context;
    // Every section after the Document's reads the survey; without one there is no report.
    if (gSurvey == nullptr) {
        return ZM_ERR_NO_MEMORY;
    }
    HostString heading;
    try {
        heading = Heading();
    } catch (const zm::Error&) {
        return 1;
    }
    AppendReportLine(text, heading.Get(), 0);

    for (SectionWriter write : kSections) {
        AppendSeparator(text);
        if (ZMErr error = write(text); error != ZM_ERR_NONE) {
            return error;
        }
    }

    try {
        HostString ending = MakeUnicodeFromBytes("\r\n\r\n", ZM_ENCODING_PLATFORM);
        AppendReportLine(text, ending.Get(), 0);
    } catch (const zm::Error&) {
        // The sections are all there; a missing blank ending does not make the report wrong.
    }
    return ZM_ERR_NONE;
}

}  // namespace tolvane
