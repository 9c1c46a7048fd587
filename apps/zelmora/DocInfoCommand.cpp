#include "DocInfoCommand.hpp"

#include "ExitCodes.hpp"
#include "PanelDriver.hpp"
#include "TerminalProgressBar.hpp"

#include <document/ArtLookup.hpp>
#include <importers/DocumentImport.hpp>

#include <zelmora/ZMNotifierSuite.h>

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <unistd.h>

#include <iostream>
#include <memory>
#include <ostream>

namespace zelmora {

namespace {

constexpr const char* kPanelPluginName = "Tolvane";
constexpr int32_t kDocumentMode = 2;

// Selects each art and what it holds; true when anything was not selected before.
bool SelectArt(const std::vector<zm::host::document::Art*>& arts) {
    bool changed = false;
    for (zm::host::document::Art* art : arts) {
        changed = changed || !art->IsSelected();
        art->SetSelected(true);
    }
    return changed;
}

}  // namespace

int RunDocInfoCommand(const SessionOptions& sessionOptions, DocInfoOptions& options,
                      std::ostream& out, std::ostream& errors) {
    // The categories other than Document show what the art survey found; until the survey
    // runs they would show empty lists as if the document held nothing.
    if (options.mode && *options.mode != kDocumentMode) {
        fmt::print(errors, "zelmora: only the document category can be shown so far\n");
        return kExitBadArguments;
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

    // Declared before the session, so it outlives the runtime that reports to it.
    TerminalProgressBar bar(std::cerr);
    SessionOptions settings = sessionOptions;
    settings.saveAnswer = options.output;
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

    if (options.mode) {
        // As a user would: open the panel from its menu item, set Selection Only, choose
        // the category, read the text.
        PanelDriver panel(runtime, *plugin);
        panel.ShowPanel();
        panel.SetSelectionOnly(options.selectionOnly);
        panel.ChooseCategory(*options.mode);
        out << panel.ShownText();
        out.flush();
    }

    runtime.plugins.Notify(ZM_NOTIFIER_DOCUMENT_ABOUT_TO_CLOSE, &opened);
    runtime.documents.CloseCurrent();
    runtime.plugins.Notify(ZM_NOTIFIER_DOCUMENT_CLOSED, nullptr);

    session.Finish();
    return kExitDone;
}

}  // namespace zelmora
