#include "framework/MessageDispatch.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/ZMPluginFramework.h>

#include <cstring>

namespace zm::host {

namespace {

constexpr int32_t kFrameworkVersion = 2;

LoadedPlugin& PluginOf(Runtime& runtime, const ZMPluginDescription* description) {
    LoadedPlugin* plugin = runtime.plugins.FindByDescription(description);
    if (plugin == nullptr) {
        throw HostError(ZM_ERR_NOT_FOUND, "description record the framework has not seen");
    }
    return *plugin;
}

ZMErr ZM_API GetFrameworkVersion(const ZMPluginDescription* description, int32_t* version) {
    return GuardSuiteCall(ZM_LMB_PLUGIN_SUITE_NAME, 0, [&](Runtime& runtime) {
        RequireArguments(version);
        PluginOf(runtime, description);
        *version = kFrameworkVersion;
    });
}

ZMErr ZM_API GetPluginData(const ZMPluginDescription* description,
                           const ZMFrameworkPluginData** data) {
    return GuardSuiteCall(ZM_LMB_PLUGIN_SUITE_NAME, 1, [&](Runtime& runtime) {
        RequireArguments(data);
        *data = &PluginOf(runtime, description).framework.data;
    });
}

ZMErr ZM_API GetPluginName(const ZMPluginDescription* description, const char** name) {
    return GuardSuiteCall(ZM_LMB_PLUGIN_SUITE_NAME, 2, [&](Runtime& runtime) {
        RequireArguments(name);
        *name = PluginOf(runtime, description).Name().c_str();
    });
}

ZMErr ZM_API IsStarted(const ZMPluginDescription* description, int32_t* started) {
    return GuardSuiteCall(ZM_LMB_PLUGIN_SUITE_NAME, 3, [&](Runtime& runtime) {
        RequireArguments(started);
        *started = PluginOf(runtime, description).framework.data.started;
    });
}

ZMErr ZM_API StartPlugin(const ZMPluginDescription* description) {
    return GuardSuiteCall(ZM_LMB_PLUGIN_SUITE_NAME, 8, [&](Runtime& runtime) {
        PluginOf(runtime, description).framework.data.started = 1;
    });
}

ZMErr ZM_API StopPlugin(const ZMPluginDescription* description) {
    return GuardSuiteCall(ZM_LMB_PLUGIN_SUITE_NAME, 9, [&](Runtime& runtime) {
        PluginOf(runtime, description).framework.data.started = 0;
    });
}

ZMErr ZM_API GetPluginRef(const ZMPluginDescription* description, ZMPluginRef* ref) {
    return GuardSuiteCall(ZM_LMB_PLUGIN_SUITE_NAME, 12, [&](Runtime& runtime) {
        RequireArguments(ref);
        *ref = PluginOf(runtime, description).Ref();
    });
}

ZMErr ZM_API AllocatePluginBlock(const ZMPluginDescription* description, size_t size,
                                 void** block) {
    return GuardSuiteCall(ZM_LMB_PLUGIN_SUITE_NAME, 15, [&](Runtime& runtime) {
        RequireArguments(block);
        PluginOf(runtime, description);
        *block = runtime.blocks.Allocate(size);
        if (*block == nullptr) {
            throw HostError(ZM_ERR_NO_MEMORY);
        }
    });
}

ZMErr ZM_API FreePluginBlock(const ZMPluginDescription* description, void* block) {
    return GuardSuiteCall(ZM_LMB_PLUGIN_SUITE_NAME, 16, [&](Runtime& runtime) {
        PluginOf(runtime, description);
        if (block != nullptr && !runtime.blocks.Free(block)) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "not a block of this host");
        }
    });
}

ZMErr ZM_API FourCharToText(int32_t code, char* text) {
    return GuardSuiteCall(ZM_LMB_UTILS_SUITE_NAME, 0, [&](Runtime&) {
        RequireArguments(text);
        auto bits = static_cast<uint32_t>(code);
        for (int i = 0; i < 4; ++i) {
            text[i] = static_cast<char>((bits >> (24 - 8 * i)) & 0xFFu);
        }
        text[4] = '\0';
    });
}

ZMErr ZM_API TextToFourChar(const char* text, int32_t* code) {
    return GuardSuiteCall(ZM_LMB_UTILS_SUITE_NAME, 1, [&](Runtime&) {
        RequireArguments(text, code);
        if (std::strlen(text) != 4) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "not four characters");
        }
        *code = ZM_FOUR_CHAR(static_cast<unsigned char>(text[0]),
                             static_cast<unsigned char>(text[1]),
                             static_cast<unsigned char>(text[2]),
                             static_cast<unsigned char>(text[3]));
    });
}

const ZMLMBBasicSuite kBasicTable = {DispatchMessage};

ZMLMBPluginSuite MakePluginTable() {
    ZMLMBPluginSuite table{};
    table.GetFrameworkVersion = GetFrameworkVersion;
    table.GetPluginData = GetPluginData;
    table.GetPluginName = GetPluginName;
    table.IsStarted = IsStarted;
    table.StartPlugin = StartPlugin;
    table.StopPlugin = StopPlugin;
    table.GetPluginRef = GetPluginRef;
    table.AllocateBlock = AllocatePluginBlock;
    table.FreeBlock = FreePluginBlock;
    return table;
}

const ZMLMBPluginSuite kPluginTable = MakePluginTable();
const ZMLMBUtilsSuite kUtilsTable = {FourCharToText, TextToFourChar};

}  // namespace

void RegisterFrameworkSuites(SuiteRegistry& registry) {
    registry.Add(ZM_LMB_BASIC_SUITE_NAME, ZM_LMB_BASIC_SUITE_VERSION, &kBasicTable);
    registry.Add(ZM_LMB_PLUGIN_SUITE_NAME, ZM_LMB_PLUGIN_SUITE_VERSION, &kPluginTable);
    registry.Add(ZM_LMB_UTILS_SUITE_NAME, ZM_LMB_UTILS_SUITE_VERSION, &kUtilsTable);
}

}  // namespace zm::host
