#include "DocInfoArguments.hpp"
#include "DocInfoCommand.hpp"
#include "ExitCodes.hpp"
#include "HostSession.hpp"
#include "PluginsCommand.hpp"

#include <localization/Localizer.hpp>

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
    std::string category;
    docinfo
        ->add_option("-c,--category", category,
                     "print the panel's text for one category: document, objects, "
                     "graphic-styles, brushes, spot-colors, patterns, gradients, fonts, "
                     "linked-images, embedded-images, font-details")
        ->check(CLI::Validator(
            [](std::string& name) {
                return zelmora::CategoryMode(name) ? std::string()
                                                   : "no category named " + name;
            },
            "NAME", "category"));
    docinfo->add_option("-o,--output", docInfo.output,
                        "run the panel's Save command; the save dialog answers PATH");
    docinfo
        ->add_option("--select", docInfo.selectIds,
                     "select that element (and what it holds); repeatable; turns "
                     "\"Selection Only\" on")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    docinfo->add_option("--usage-log", docInfo.usageLog,
                        "append the close-time usage data as JSON Lines");
    std::vector<std::string> preferences;
    docinfo
        ->add_option("--pref", preferences,
                     "set a host preference (for example rulerType=0); repeatable")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->check(CLI::Validator(
            [](std::string& text) {
                return zelmora::ParsePreference(text) ? std::string()
                                                      : "not KEY=VALUE: " + text;
            },
            "KEY=VALUE", "preference"));
    docinfo
        ->add_option("--locale", session.locale, "host locale (default en-US)")
        ->check(CLI::Validator(
            [](std::string& tag) {
                return zm::host::Localizer::IsWellFormedTag(tag) ? std::string()
                                                                 : "not a locale tag: " + tag;
            },
            "TAG", "locale"));
    docinfo->add_flag("-q,--quiet", docInfo.quiet, "no progress bar");

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
            if (!category.empty()) {
                docInfo.mode = zelmora::CategoryMode(category);
            }
            for (const std::string& preference : preferences) {
                session.preferences.push_back(*zelmora::ParsePreference(preference));
            }
            return zelmora::RunDocInfoCommand(session, docInfo, std::cout, std::cerr);
        }
    } catch (const std::exception& error) {
        std::cerr << "zelmora: " << error.what() << "\n";
        return zelmora::kExitPluginNotLoaded;
    }
    return zelmora::kExitBadArguments;
}
