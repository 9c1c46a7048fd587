#include "report/ReportAssembly.hpp"

#include "report/DocumentSection.hpp"
#include "report/Error.hpp"
#include "report/ListSections.hpp"
#include "report/LoadTolvaneString.hpp"
#include "report/ObjectsSection.hpp"
#include "report/ReportBuffer.hpp"
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

    // Document, Objects, then the lists, each after the separator.
    AppendSeparator(text);
    if (ZMErr error = AppendDocumentSection(text); error != ZM_ERR_NONE) {
        return error;
    }
    AppendSeparator(text);
    if (ZMErr error = WriteObjectsSection(text); error != ZM_ERR_NONE) {
        return error;
    }
    for (const ListSection& section : ListSections()) {
        AppendSeparator(text);
        if (ZMErr error = WriteListSection(text, section); error != ZM_ERR_NONE) {
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
