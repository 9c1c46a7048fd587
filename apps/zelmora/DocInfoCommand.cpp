#include "DocInfoCommand.hpp"

#include "ExitCodes.hpp"
#include "PanelDriver.hpp"
#include "TerminalProgressBar.hpp"

#include <document/ArtLookup.hpp>
#include <importers/DocumentImport.hpp>
#include <runtime/UsageLog.hpp>

#include <zelmora/ZMNotifierSuite.h>

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <system_error>
#include <memory>
#include <ostream>

namespace zelmora {

namespace {

constexpr const char* kPanelPluginName = "Tolvane";

// Selects each art and what it holds; true when anything was not selected before.
bool SelectArt(const std::vector<zm::host::document::Art*>& arts) {
    bool changed = false;
    for (zm::host::document::Art* art : arts) {
        changed = changed || !art->IsSelected();
        art->SetSelected(true);
    }
    return changed;
}

// A folder of our own under the system's temporary folder, removed with what it holds.
class ScratchReport {
public:
    ScratchReport() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "zelmora-report-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            throw std::filesystem::filesystem_error(
                "mkdtemp", std::error_code(errno, std::generic_category()));
        }
        folder_ = pattern;
    }
    ~ScratchReport() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    ScratchReport(const ScratchReport&) = delete;
    ScratchReport& operator=(const ScratchReport&) = delete;

    std::filesystem::path File() const { return folder_ / "report.txt"; }

private:
    std::filesystem::path folder_;
};

// Which file a path names, so that a report written over an older one can be told from the
// older one left in place: the host writes a new file and moves it over the target.
struct FileIdentity {
    bool exists = false;
    dev_t device = 0;
    ino_t inode = 0;
};

FileIdentity IdentityOf(const std::filesystem::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return {};
    }
    return {true, status.st_dev, status.st_ino};
}

// The file the save dialog chose, when the plug-in wrote it (a folder given as the answer
// gets the proposed name inside it); nothing when the dialog was not shown or the file there
// is missing or still the one that was there before.
std::optional<std::filesystem::path> WrittenReport(const zm::host::Runtime& runtime,
                                                   const FileIdentity& before) {
    const auto& shown = runtime.dialogs.shown;
    if (shown.empty() || shown.back().kind != zm::host::DialogKind::SaveFile ||
        shown.back().chosen.empty()) {
        return std::nullopt;
    }
    const std::filesystem::path& chosen = shown.back().chosen;
    FileIdentity after = IdentityOf(chosen);
    if (!after.exists ||
        (before.exists && before.device == after.device && before.inode == after.inode)) {
        return std::nullopt;
    }
    return chosen;
}

}  // namespace

int RunDocInfoCommand(const SessionOptions& sessionOptions, DocInfoOptions& options,
                      std::ostream& out, std::ostream& errors) {
    // The usage log is opened first: a path it cannot be written to is a bad argument, found
    // before any work is done.
    zm::host::UsageLog usageLog;
    if (options.usageLog) {
        try {
            usageLog.Open(*options.usageLog);
        } catch (const zm::host::UsageLogError& error) {
            fmt::print(errors, "zelmora: {}\n", error.what());
            return kExitBadArguments;
        }
    }

    // Read the file and find what to select before anything starts, so a document that
    // cannot be opened, or an id it lacks, costs no plug-in start-up and leaves nothing half
    // done.
    std::unique_ptr<zm::host::document::Document> document;
    try {
        document = zm::host::ImportDocument(options.file);
    } catch (const zm::host::DocumentOpenError& error) {
        fmt::print(errors, "zelmora: cannot open {}\n", error.what());
        return kExitCannotOpen;
    }
    std::vector<zm::host::document::Art*> toSelect;
    for (const std::string& id : options.selectIds) {
        zm::host::document::Art* art = zm::host::document::FindArtById(*document, id);
        if (art == nullptr) {
            fmt::print(errors, "zelmora: {} has no element with id \"{}\"\n",
                       options.file.string(), id);
            return kExitBadArguments;
        }
        toSelect.push_back(art);
    }
    options.selectionOnly = !toSelect.empty();

    // Without a category or an output file the whole report goes to standard output: it is
    // saved, as a user would, into a private folder and read back from there, so what is
    // printed is exactly what Save writes.
    std::optional<ScratchReport> scratch;
    if (!options.mode && !options.output) {
        try {
            scratch.emplace();
        } catch (const std::filesystem::filesystem_error& error) {
            fmt::print(errors, "zelmora: cannot make a temporary folder for the report: {}\n",
                       error.code().message());
            return kExitNotWritten;
        }
    }
    const std::optional<std::filesystem::path> saveTo =
        scratch ? std::optional(scratch->File()) : options.output;

    // Declared before the session, so it outlives the runtime that reports to it.
    TerminalProgressBar bar(std::cerr);
    SessionOptions settings = sessionOptions;
    settings.saveAnswer = saveTo;
    settings.usageLog = &usageLog;
    if (!options.quiet && isatty(STDERR_FILENO) == 1) {
        settings.progress = &bar;
    }

    HostSession session(settings, errors);
    auto& runtime = session.Runtime();
    zm::host::LoadedPlugin* plugin = runtime.plugins.FindByName(kPanelPluginName);
    if (plugin == nullptr) {
        fmt::print(errors, "zelmora: the {} plug-in could not be loaded\n", kPanelPluginName);
        return kExitPluginNotLoaded;
    }
    runtime.plugins.Notify(ZM_NOTIFIER_APPLICATION_STARTED, nullptr);

    auto& opened = runtime.documents.Add(std::move(document));
    runtime.plugins.Notify(ZM_NOTIFIER_DOCUMENT_OPENED, &opened);
    if (SelectArt(toSelect)) {
        runtime.plugins.Notify(ZM_NOTIFIER_ART_SELECTION_CHANGED, &opened);
    }

    // As a user would: open the panel from its menu item, set Selection Only, choose the
    // category and read the text, or choose Save.
    PanelDriver panel(runtime, *plugin);
    panel.ShowPanel();
    panel.SetSelectionOnly(options.selectionOnly);
    if (options.mode) {
        panel.ChooseCategory(*options.mode);
        out << panel.ShownText();
        out.flush();
    }
    int status = kExitDone;
    if (saveTo) {
        const FileIdentity before = IdentityOf(*saveTo);
        panel.Save();
        std::optional<std::filesystem::path> written = WrittenReport(runtime, before);
        if (!written) {
            fmt::print(errors, "zelmora: the report could not be written to {}\n",
                       saveTo->string());
            status = kExitNotWritten;
        } else if (scratch) {
            std::ifstream report(*written, std::ios::binary);
            out << report.rdbuf();
            out.flush();
        }
    }

    runtime.plugins.Notify(ZM_NOTIFIER_DOCUMENT_ABOUT_TO_CLOSE, &opened);
    runtime.documents.CloseCurrent();
    runtime.plugins.Notify(ZM_NOTIFIER_DOCUMENT_CLOSED, nullptr);

    session.Finish();
    // Closed here rather than with the runtime, so that a group that cannot be written is
    // reported and changes the exit status.
    try {
        runtime.usage.Close();
    } catch (const zm::host::UsageLogError& error) {
        fmt::print(errors, "zelmora: {}\n", error.what());
        status = kExitNotWritten;
    }
    return status;
}

}  // namespace zelmora
