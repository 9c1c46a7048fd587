#include "survey/PluginGroups.hpp"

#include <zelmora/ZMVectorizeSuite.h>

#include <cstring>

#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

namespace tolvane {

namespace {

constexpr const char* kSymbolismPlugin = "Quorvel Symbolism";

// The counter each known plug-in's groups go to. Symbol sets are counted by their
// instances instead (IsSymbolSetGroup), so the symbolism plug-in raises nothing here but
// still keeps its groups away from the image-tracing test.
struct PluginCounter {
    const char* pluginName;
    int32_t SurveyRecord::*counter;  // null: counted elsewhere
};

constexpr PluginCounter kPluginCounters[] = {
    {kSymbolismPlugin, nullptr},
    {"Quorvel Path Blends", &SurveyRecord::blendCount},
    {"Pathfinder Suite", &SurveyRecord::compoundShapeCount},
    {"Quorvel Planar Edit Plugin", &SurveyRecord::livePaintGroupCount},
    {"Quorvel Deform Plugin", &SurveyRecord::envelopeCount},
    {"Quorvel Flare Plugin", &SurveyRecord::flareCount},
};

// The name of the plug-in that made a plug-in group, as the host's plug-ins suite gives it;
// null, and success, when the host has no name for it.
ZMErr GetPluginGroupName(ZMArtHandle art, const char** name) {
    *name = nullptr;
    ZMPluginGroupClass groupClass = nullptr;
    if (ZMErr error = sPluginGroupSuite->GetPluginArtClass(art, &groupClass);
        error != ZM_ERR_NONE) {
        return error;
    }
    ZMPluginRef plugin = nullptr;
    if (ZMErr error = sPluginGroupSuite->GetPluginClassPluginRef(groupClass, &plugin);
        error != ZM_ERR_NONE) {
        return error;
    }
    return sHvPluginsSuite->GetPluginName(plugin, name);
}

// The vectorize suite is optional: without it no art counts as image tracing.
ZMErr CountTracingObject(ZMArtHandle art) {
    const void* table = nullptr;
    if (sBasicSuite->AcquireSuite(ZM_VECTORIZE_SUITE_NAME, ZM_VECTORIZE_SUITE_VERSION, &table) !=
        ZM_ERR_NONE) {
        return ZM_ERR_NONE;
    }
    const auto* vectorize = static_cast<const ZMVectorizeSuite*>(table);
    ZMBool isTracing = 0;
    ZMErr error = vectorize->IsTracingArt(art, &isTracing);
    if (error == ZM_ERR_NONE && isTracing != 0) {
        ++CollectingSurvey().record.tracingObjectCount;
    }
    sBasicSuite->ReleaseSuite(ZM_VECTORIZE_SUITE_NAME, ZM_VECTORIZE_SUITE_VERSION);
    return error;
}

}  // namespace

ZMErr ClassifyPluginGroup(ZMArtHandle art) {
    ZMArtType type = ZM_ART_UNKNOWN;
    if (ZMErr error = sArtSuite->GetArtType(art, &type); error != ZM_ERR_NONE) {
        return error;
    }
    if (type != ZM_ART_PLUGIN_GROUP) {
        return ZM_ERR_NONE;
    }
    const char* name = nullptr;
    if (ZMErr error = GetPluginGroupName(art, &name); error != ZM_ERR_NONE) {
        return error;
    }
    if (name == nullptr) {
        return ZM_ERR_NONE;
    }
    for (const PluginCounter& known : kPluginCounters) {
        if (std::strcmp(name, known.pluginName) == 0) {
            if (known.counter != nullptr) {
                ++(CollectingSurvey().record.*known.counter);
            }
            return ZM_ERR_NONE;
        }
    }
    return CountTracingObject(art);
}

ZMErr IsSymbolSetGroup(ZMArtHandle art, int32_t& isSet) {
    isSet = 0;
    ZMArtHandle parent = nullptr;
    if (ZMErr error = sArtSuite->GetArtParent(art, &parent); error != ZM_ERR_NONE) {
        return error;
    }
    if (parent == nullptr) {
        return ZM_ERR_NONE;
    }
    // A symbol set holds its instances in its result group: the set is the grandparent.
    ZMArtHandle grandparent = nullptr;
    if (ZMErr error = sArtSuite->GetArtParent(parent, &grandparent); error != ZM_ERR_NONE) {
        return error;
    }
    if (grandparent == nullptr) {
        return ZM_ERR_NONE;
    }
    ZMArtType type = ZM_ART_UNKNOWN;
    if (ZMErr error = sArtSuite->GetArtType(grandparent, &type); error != ZM_ERR_NONE) {
        return error;
    }
    if (type != ZM_ART_PLUGIN_GROUP) {
        return ZM_ERR_NONE;
    }
    const char* name = nullptr;
    if (ZMErr error = GetPluginGroupName(grandparent, &name); error != ZM_ERR_NONE) {
        return error;
    }
    if (name != nullptr && std::strcmp(name, kSymbolismPlugin) == 0) {
        isSet = 1;
        ++CollectingSurvey().record.symbolSetCount;
    }
    return ZM_ERR_NONE;
}

}  // namespace tolvane
