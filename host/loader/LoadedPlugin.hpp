#pragma once

#include "loader/PluginBundle.hpp"
#include "loader/PluginLibrary.hpp"

#include <zelmora/ZMPluginFramework.h>
#include <zelmora/ZMPluginMain.h>

namespace zm::host {

// What the framework keeps for a plug-in between messages.
struct FrameworkState {
    const ZMPluginDescription* description = nullptr;  // as handed to the last Dispatch
    ZMFrameworkPluginData data{};
    const ZMSuiteDeclaration* heldSuites = nullptr;  // set while the declared suites are held
};

// A plug-in the host knows: its bundle, its code when loaded, and the globals block it
// stored, which the host keeps across unload and reload.
class LoadedPlugin {
public:
    explicit LoadedPlugin(PluginBundle bundle) : bundle(std::move(bundle)) {}

    ZMPluginRef Ref() { return reinterpret_cast<ZMPluginRef>(this); }
    const std::string& Name() const { return bundle.properties.pluginName; }

    // Fills the header of `message` (signature, self, globals, the host's basic suite),
    // calls PluginMain and keeps the globals field the plug-in left in it.
    template <typename Message>
    ZMErr Send(const char* caller, const char* selector, Message& message) {
        FillHeader(message.d);
        ZMErr result = SendRaw(caller, selector, &message);
        globals = message.d.globals;
        return result;
    }
    ZMErr Send(const char* caller, const char* selector, ZMMessageRecord& message) {
        FillHeader(message);
        ZMErr result = SendRaw(caller, selector, &message);
        globals = message.globals;
        return result;
    }
    // Calls PluginMain with the message exactly as given; ZM_ERR_NOT_STARTED when the code
    // is not loaded.
    ZMErr SendRaw(const char* caller, const char* selector, void* message);

    PluginBundle bundle;
    PluginLibrary library;
    void* globals = nullptr;
    FrameworkState framework;

private:
    void FillHeader(ZMMessageRecord& header);
};

}  // namespace zm::host
