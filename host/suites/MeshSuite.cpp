#include <zelmora/ZMMeshSuite.h>

#include "suites/ArtHandles.hpp"
#include "suites/ColorRecords.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

const document::Art& MeshOf(Runtime& runtime, ZMArtHandle mesh) {
    CurrentDocument(runtime);
    return ArtOf(mesh, document::ArtType::Mesh);
}

ZMErr ZM_API CountMeshColors(ZMArtHandle mesh, int32_t* count) {
    return GuardSuiteCall(ZM_MESH_SUITE_NAME, 0, [&](Runtime& runtime) {
        const document::Art& art = MeshOf(runtime, mesh);
        RequireArguments(count);
        *count = static_cast<int32_t>(art.meshColors.size());
    });
}

ZMErr ZM_API ForEachMeshColor(ZMArtHandle mesh, ZMMeshColorProc proc, void* data) {
    return GuardSuiteCall(ZM_MESH_SUITE_NAME, 1, [&](Runtime& runtime) {
        const document::Art& art = MeshOf(runtime, mesh);
        if (proc == nullptr) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no callback");
        }
        for (const document::Color& color : art.meshColors) {
            ZMColor record = ToColorRecord(color);
            if (ZMErr result = proc(data, &record); result != ZM_ERR_NONE) {
                throw HostError(result, "the callback stopped the enumeration");
            }
        }
    });
}

ZMMeshSuite MakeTable() {
    ZMMeshSuite table{};
    table.CountMeshColors = CountMeshColors;
    table.ForEachMeshColor = ForEachMeshColor;
    return table;
}

const ZMMeshSuite kTable = MakeTable();

}  // namespace

void RegisterMeshSuite(SuiteRegistry& registry) {
    registry.Add(ZM_MESH_SUITE_NAME, ZM_MESH_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
