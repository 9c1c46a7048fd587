#include "PluginsCommand.hpp"

#include "ExitCodes.hpp"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <algorithm>
#include <ostream>

namespace zelmora {

int RunPluginsCommand(const SessionOptions& options, std::ostream& out, std::ostream& errors) {
    HostSession session(options, errors);
    const auto& plugins = session.Runtime().plugins.Plugins();
    std::size_t nameWidth = 4;
    for (const auto& plugin : plugins) {
        nameWidth = std::max(nameWidth, plugin->Name().size());
    }
    fmt::print(out, "{:<{}}  KIND  INTERFACE  BUNDLE\n", "NAME", nameWidth);
    for (const auto& plugin : plugins) {
        const auto& properties = plugin->bundle.properties;
        fmt::print(out, "{:<{}}  {:<4}  {:<9}  {}\n", properties.pluginName, nameWidth,
                   properties.kind, properties.interfaceVersion, plugin->bundle.folder.string());
    }
    session.Finish();
    return kExitDone;
}

}  // namespace zelmora
