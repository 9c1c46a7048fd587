#include "report/SaveReport.hpp"

#include "panel/TolvanePanel.hpp"
#include "report/Error.hpp"
#include "report/HostFilePath.hpp"
#include "report/LoadTolvaneString.hpp"
#include "report/ReportAssembly.hpp"
#include "shell/AppContext.hpp"
#include "shell/FrameworkCalls.hpp"
#include "shell/Globals.hpp"
#include "shell/SuiteSet.hpp"

#include <cstring>

namespace tolvane {

namespace {

constexpr int16_t kSaveDocumentPrompt = 3;   // ResMode
constexpr int16_t kSaveSelectionPrompt = 4;  // ResMode
constexpr int16_t kUntitledName = 1;         // ResSave
constexpr int16_t kNameSuffix = 2;           // ResSave

// The file's creator and type codes: a plain text file.
constexpr uint32_t kCreator = ZM_FOUR_CHAR('t', 't', 'x', 't');
constexpr uint32_t kFileType = ZM_FOUR_CHAR('T', 'E', 'X', 'T');

// The document's file name without its extension and " Info.txt"; "Info.txt" for a
// document that has no file yet.
HostString DefaultFileName() {
    HostFilePath documentPath;
    if (sDocumentSuite->GetDocumentFilePath(documentPath.Get()) != ZM_ERR_NONE) {
        return LoadTolvaneString(ResSave, kUntitledName);
    }
    HostString name = HostString::Empty();
    zm::Check(sFilePathSuite->GetFileName(documentPath.Get(), 0, name.Get()));
    name.Append(LoadTolvaneString(ResSave, kNameSuffix));
    return name;
}

// The save text as single-byte text: at most as many bytes as it has characters (a
// character the encoding cannot hold becomes one byte), counted up to the first NUL.
void WriteReportFile(ZMFilePath target, const ReportText& report) {
    HostString text = HostString::Copy(report.saveText.Get());
    const int32_t length = text.Length();

    ZMDataFilter filter = nullptr;
    if (sDataFilterSuite->NewFileDataFilter(target, "write", kCreator, kFileType, &filter) !=
        ZM_ERR_NONE) {
        return;
    }
    if (sDataFilterSuite->LinkDataFilter(nullptr, filter) != ZM_ERR_NONE) {
        FreePluginBlock(filter);
        return;
    }
    void* block = nullptr;
    if (AllocatePluginBlock(static_cast<size_t>(length) + 1, &block) != ZM_ERR_NONE) {
        return;
    }
    char* bytes = static_cast<char*>(block);
    int32_t converted = 0;
    // A text that converts to more bytes than it has characters is cut there.
    sUnicodeStringSuite->ToBytes(text.Get(), ZM_ENCODING_PLATFORM, bytes, length + 1,
                                 &converted);
    bytes[length] = '\0';
    const size_t count = std::strlen(bytes);
    sDataFilterSuite->WriteDataFilter(filter, bytes, count);
    sDataFilterSuite->UnlinkDataFilter(filter, ZM_ERR_NONE);
    // The byte block stays with the framework, which gives back what a plug-in keeps when
    // it goes.
}

}  // namespace

void SaveReport(TolvanePanel& panel) {
    ScopedAppContext context;
    try {
        HostString defaultName = DefaultFileName();
        HostString prompt = LoadTolvaneString(
            ResMode, gGlobals->selectionOnly != 0 ? kSaveSelectionPrompt : kSaveDocumentPrompt);
        HostFilePath target;
        if (sUserSuite->PutFileDialog(prompt.Get(), nullptr, defaultName.Get(), target.Get()) !=
            ZM_ERR_NONE) {
            return;
        }
        ReportText& report = panel.MutableReport();
        report.saveText.Assign(nullptr);
        panel.EmptyList();
        // Whatever was assembled before a failing section is still worth writing.
        AssembleReport(report);
        WriteReportFile(target.Get(), report);
    } catch (const zm::Error&) {
        // Saving shows no message; a step that fails ends it.
    }
}

}  // namespace tolvane
