#include "report/ReportBuffer.hpp"

#include "report/Error.hpp"
#include "report/LoadTolvaneString.hpp"
#include "shell/SuiteSet.hpp"

#include <string>

namespace tolvane {

namespace {

constexpr int kSeparatorHyphens = 77;

}  // namespace

HostString LineBreak() { return MakeUnicodeFromBytes("\r\n", ZM_ENCODING_PLATFORM); }

ZMErr AppendReportLine(ReportText& text, ZMUnicodeString line, int16_t breaks) {
    try {
        int32_t lineLength = 0;
        zm::Check(sUnicodeStringSuite->Length(line, &lineLength));
        // The save text grows in place: measuring it is cheap, copying it for every line is
        // not, and a refused line leaves both texts as they were either way.
        int64_t saveLength = text.saveText.Length();
        if (saveLength + 1 + lineLength >= kReportCeiling) {
            return ZM_ERR_NONE;
        }
        text.displayText.Append(line);
        HostString lineBreak = LineBreak();
        for (int16_t i = 0; i < breaks; ++i) {
            text.displayText.Append(lineBreak);
        }
        zm::Check(sUnicodeStringSuite->Append(line, lineBreak.Get()));
        text.saveText.Append(line);
        return ZM_ERR_NONE;
    } catch (const zm::Error& error) {
        return error.Code();
    }
}

ZMErr AppendSectionTitle(ReportText& text, int16_t titleIndex) {
    try {
        HostString title = LoadTolvaneString(ResTitleTextBase, titleIndex);
        return AppendReportLine(text, title.Get(), 2);
    } catch (const zm::Error& error) {
        return error.Code();
    }
}

void AppendSeparator(ReportText& text) {
    const std::string separator = "\r\n" + std::string(kSeparatorHyphens, '-') + "\r\n";
    try {
        HostString line = MakeUnicodeFromBytes(separator.c_str(), ZM_ENCODING_PLATFORM);
        AppendReportLine(text, line.Get(), 0);
    } catch (const zm::Error&) {
        // A separator that cannot be made is left out; the sections around it still count.
    }
}

}  // namespace tolvane
