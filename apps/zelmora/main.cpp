#include "ExitCodes.hpp"
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
    std::vector<std::filesystem::path> pluginFolders;
    app.add_option("--plugin-dir", pluginFolders,
                   "also look for plug-in bundles in this folder (repeatable)");

    CLI::App* plugins = app.add_subcommand("plugins", "load the plug-ins and list them");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        int status = app.exit(error);
        return status == 0 ? zelmora::kExitDone : zelmora::kExitBadArguments;
    }

    try {
        if (plugins->parsed()) {
            return zelmora::RunPluginsCommand(pluginFolders, std::cout, std::cerr);
        }
    } catch (const std::exception& error) {
        std::cerr << "zelmora: " << error.what() << "\n";
        return zelmora::kExitPluginNotLoaded;
    }
    return zelmora::kExitBadArguments;
}
