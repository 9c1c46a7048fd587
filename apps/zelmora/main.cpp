#include "DocInfoCommand.hpp"
#include "ExitCodes.hpp"
#include "HostSession.hpp"
#include "PluginsCommand.hpp"

#include <CLI/CLI.hpp>

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    CLI::App app{"zelmora: a headless Zelmora host session"};
    app.require_subcommand(1);
    zelmora::SessionOptions session;
    app.add_option("--plugin-dir", session.pluginFolders,
                   "also look for plug-in bundles in this folder (repeatable)")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    // Not for users: lets tests reach a plug-in's out-of-memory path through the command.
    app.add_option("--fail-allocation", session.failAllocation)->group("")->check(CLI::PositiveNumber);

    CLI::App* plugins = app.add_subcommand("plugins", "load the plug-ins and list them");

    zelmora::DocInfoOptions docInfo;
    CLI::App* docinfo =
        app.add_subcommand("docinfo", "open a document and survey it with the Tolvane panel");
    docinfo->add_option("FILE", docInfo.file, "the document (SVG)")->required();

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        int status = app.exit(error);
        return status == 0 ? zelmora::kExitDone : zelmora::kExitBadArguments;
    }

    try {
        if (plugins->parsed()) {
            return zelmora::RunPluginsCommand(session, std::cout, std::cerr);
        }
        if (docinfo->parsed()) {
            return zelmora::RunDocInfoCommand(session, docInfo, std::cout, std::cerr);
        }
    } catch (const std::exception& error) {
        std::cerr << "zelmora: " << error.what() << "\n";
        return zelmora::kExitPluginNotLoaded;
    }
    return zelmora::kExitBadArguments;
}
