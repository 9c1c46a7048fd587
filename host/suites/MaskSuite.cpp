#include <zelmora/ZMMaskSuite.h>

#include <memory>

#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

ZMErr ZM_API GetMask(ZMArtHandle art, ZMMaskHandle* mask) {
    return GuardSuiteCall(ZM_MASK_SUITE_NAME, 0, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(mask);
        const document::Art& owner = ArtOf(art);
        *mask = nullptr;
        if (!owner.opacityMask) {
            return;
        }
        // One record per masked object, shared by every reference to it.
        for (const auto& held : runtime.masks.All()) {
            if (held->owner == &owner) {
                ++held->references;
                *mask = runtime.masks.HandleOf(*held);
                return;
            }
        }
        *mask = runtime.masks.HandleOf(runtime.masks.Add(MaskReference{&owner, 1}));
    });
}

ZMErr ZM_API GetMaskArt(ZMMaskHandle mask, ZMArtHandle* art) {
    return GuardSuiteCall(ZM_MASK_SUITE_NAME, 1, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(art);
        const MaskReference& reference = runtime.masks.Require(mask);
        // The reference outlives the art when the document closes first.
        if (!document::Art::IsLive(reference.owner) || !reference.owner->opacityMask) {
            throw HostError(ZM_ERR_NOT_FOUND, "the masked art is gone");
        }
        *art = HandleOf(reference.owner->opacityMask.get());
    });
}

ZMErr ZM_API AddRefMask(ZMMaskHandle mask) {
    return GuardSuiteCall(ZM_MASK_SUITE_NAME, 2,
                          [&](Runtime& runtime) { ++runtime.masks.Require(mask).references; });
}

ZMErr ZM_API ReleaseMask(ZMMaskHandle mask) {
    return GuardSuiteCall(ZM_MASK_SUITE_NAME, 3, [&](Runtime& runtime) {
        if (--runtime.masks.Require(mask).references == 0) {
            runtime.masks.Remove(mask);
        }
    });
}

ZMMaskSuite MakeTable() {
    ZMMaskSuite table{};
    table.GetMask = GetMask;
    table.GetMaskArt = GetMaskArt;
    table.AddRefMask = AddRefMask;
    table.ReleaseMask = ReleaseMask;
    return table;
}

const ZMMaskSuite kTable = MakeTable();

}  // namespace

void RegisterMaskSuite(SuiteRegistry& registry) {
    registry.Add(ZM_MASK_SUITE_NAME, ZM_MASK_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
