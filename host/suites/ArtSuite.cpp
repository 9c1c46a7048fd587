#include <unicode/unistr.h>
#include <zelmora/ZMArtSuite.h>

#include <cstddef>
#include <vector>

#include "document/ArtBounds.hpp"
#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/LayerHandles.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

namespace zm::host {

namespace {

using document::Art;

// The art holding this art, or null at the top of a layer or of a definition.
const Art* ParentOf(const document::Document& document, const Art& art) {
    const Art* parent = art.Parent();
    return parent != nullptr && IsLayerRoot(document, *parent) ? nullptr : parent;
}

// The member `step` places from art in its parent's list of members; null past either end.
const Art* SiblingOf(const Art& art, std::ptrdiff_t step) {
    const Art* parent = art.Parent();
    if (parent == nullptr) {
        return nullptr;
    }
    const auto& members = parent->Children();
    for (std::size_t index = 0; index < members.size(); ++index) {
        if (members[index].get() == &art) {
            auto other = static_cast<std::ptrdiff_t>(index) + step;
            bool inside = other >= 0 && other < static_cast<std::ptrdiff_t>(members.size());
            return inside ? members[static_cast<std::size_t>(other)].get() : nullptr;
        }
    }
    return nullptr;
}

ZMErr ZM_API GetArtType(ZMArtHandle art, ZMArtType* type) {
    return GuardSuiteCall(ZM_ART_SUITE_NAME, 0, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(type);
        *type = static_cast<ZMArtType>(ArtOf(art).Type());
    });
}

ZMErr ZM_API GetArtParent(ZMArtHandle art, ZMArtHandle* parent) {
    return GuardSuiteCall(ZM_ART_SUITE_NAME, 1, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(parent);
        *parent = HandleOf(ParentOf(document, ArtOf(art)));
    });
}

ZMErr ZM_API GetArtFirstChild(ZMArtHandle art, ZMArtHandle* child) {
    return GuardSuiteCall(ZM_ART_SUITE_NAME, 2, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(child);
        const auto& members = ArtOf(art).Children();
        *child = members.empty() ? nullptr : HandleOf(members.front().get());
    });
}

ZMErr ZM_API GetArtSibling(ZMArtHandle art, ZMArtHandle* sibling) {
    return GuardSuiteCall(ZM_ART_SUITE_NAME, 3, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(sibling);
        *sibling = HandleOf(SiblingOf(ArtOf(art), +1));
    });
}

ZMErr ZM_API GetArtPriorSibling(ZMArtHandle art, ZMArtHandle* sibling) {
    return GuardSuiteCall(ZM_ART_SUITE_NAME, 4, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(sibling);
        *sibling = HandleOf(SiblingOf(ArtOf(art), -1));
    });
}

ZMErr ZM_API GetArtUserAttr(ZMArtHandle art, uint32_t mask, uint32_t* attributes) {
    return GuardSuiteCall(ZM_ART_SUITE_NAME, 5, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(attributes);
        *attributes = ArtOf(art).Attributes() & mask;
    });
}

ZMErr ZM_API SetArtUserAttr(ZMArtHandle art, uint32_t mask, uint32_t attributes) {
    return GuardSuiteCall(ZM_ART_SUITE_NAME, 6, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        Art& target = ArtOf(art);
        // The other bits say what the art is (a compound path's member), not what a user chose.
        if ((mask & ~document::kArtSelected) != 0) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "only the selection can be set");
        }
        if (mask != 0) {
            target.SetSelected((attributes & document::kArtSelected) != 0);
        }
    });
}

ZMErr ZM_API GetArtBounds(ZMArtHandle art, ZMRealRect* bounds) {
    return GuardSuiteCall(ZM_ART_SUITE_NAME, 7, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(bounds);
        document::Rect rect = document::ArtBounds(ArtOf(art)).value_or(document::Rect{});
        *bounds = {rect.left, rect.top, rect.right, rect.bottom};
    });
}

ZMErr ZM_API IsArtGraph(ZMArtHandle art, ZMBool* isGraph) {
    return GuardSuiteCall(ZM_ART_SUITE_NAME, 8, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(isGraph);
        *isGraph = ArtOf(art).graph ? 1 : 0;
    });
}

ZMErr ZM_API GetArtName(ZMArtHandle art, ZMUnicodeString* name) {
    return GuardSuiteCall(ZM_ART_SUITE_NAME, 9, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(name);
        *name = MakeHandle(icu::UnicodeString::fromUTF8(ArtOf(art).name));
    });
}

ZMErr ZM_API GetFirstArtOfDocument(ZMArtHandle* art) {
    return GuardSuiteCall(ZM_ART_SUITE_NAME, 10, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(art);
        *art = nullptr;
        for (const auto& layer : document.layers) {
            if (!layer->root->Children().empty()) {
                *art = HandleOf(layer->root->Children().front().get());
                return;
            }
        }
    });
}

ZMArtSuite MakeTable() {
    ZMArtSuite table{};
    table.GetArtType = GetArtType;
    table.GetArtParent = GetArtParent;
    table.GetArtFirstChild = GetArtFirstChild;
    table.GetArtSibling = GetArtSibling;
    table.GetArtPriorSibling = GetArtPriorSibling;
    table.GetArtUserAttr = GetArtUserAttr;
    table.SetArtUserAttr = SetArtUserAttr;
    table.GetArtBounds = GetArtBounds;
    table.IsArtGraph = IsArtGraph;
    table.GetArtName = GetArtName;
    table.GetFirstArtOfDocument = GetFirstArtOfDocument;
    return table;
}

const ZMArtSuite kTable = MakeTable();

}  // namespace

void RegisterArtSuite(SuiteRegistry& registry) {
    registry.Add(ZM_ART_SUITE_NAME, ZM_ART_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
