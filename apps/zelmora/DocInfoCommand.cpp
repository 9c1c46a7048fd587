#include "DocInfoCommand.hpp"

#include "ExitCodes.hpp"

#include <importers/DocumentImport.hpp>

#include <zelmora/ZMNotifierSuite.h>

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <memory>
#include <ostream>

namespace zelmora {

namespace {

constexpr const char* kPanelPluginName = "Tolvane";

}  // namespace

int RunDocInfoCommand(const SessionOptions& sessionOptions, const DocInfoOptions& options,
                      std::ostream& /*out: the panel's text arrives with the panel*/,
                      std::ostream& errors) {
    // Read the file before anything starts, so a document that cannot be opened costs no
    // plug-in start-up and leaves nothing half done.
    std::unique_ptr<zm::host::document::Document> document;
    try {
        document = zm::host::ImportDocument(options.file);
    } catch (const zm::host::DocumentOpenError& error) {
        fmt::print(errors, "zelmora: cannot open {}\n", error.what());
        return kExitCannotOpen;
    }

    HostSession session(sessionOptions, errors);
    auto& runtime = session.Runtime();
    if (runtime.plugins.FindByName(kPanelPluginName) == nullptr) {
        fmt::print(errors, "zelmora: the {} plug-in could not be loaded\n", kPanelPluginName);
        return kExitPluginNotLoaded;
    }
    runtime.plugins.Notify(ZM_NOTIFIER_APPLICATION_STARTED, nullptr);

    auto& opened = runtime.documents.Add(std::move(document));
    runtime.plugins.Notify(ZM_NOTIFIER_DOCUMENT_OPENED, &opened);

    runtime.plugins.Notify(ZM_NOTIFIER_DOCUMENT_ABOUT_TO_CLOSE, &opened);
    runtime.documents.CloseCurrent();
    runtime.plugins.Notify(ZM_NOTIFIER_DOCUMENT_CLOSED, nullptr);

    session.Finish();
    return kExitDone;
}

}  // namespace zelmora
