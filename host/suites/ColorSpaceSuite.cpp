#include "document/ResourceColorSpaces.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/DocumentResources.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMColorSpaceSuite.h>

#include <cstddef>
#include <limits>
#include <vector>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_COLOR_SPACE_SUITE_NAME;

using document::ColorSpace;
using document::ColorSpaceFamily;

// The model's families carry the suite's codes.
static_assert(static_cast<int16_t>(ColorSpaceFamily::Gray) == ZM_COLOR_SPACE_GRAY);
static_assert(static_cast<int16_t>(ColorSpaceFamily::Rgb) == ZM_COLOR_SPACE_RGB);
static_assert(static_cast<int16_t>(ColorSpaceFamily::Lab) == ZM_COLOR_SPACE_LAB);
static_assert(static_cast<int16_t>(ColorSpaceFamily::Cmyk) == ZM_COLOR_SPACE_CMYK);
static_assert(static_cast<int16_t>(ColorSpaceFamily::Separation) == ZM_COLOR_SPACE_SEPARATION);
static_assert(static_cast<int16_t>(ColorSpaceFamily::DeviceN) == ZM_COLOR_SPACE_DEVICE_N);
static_assert(static_cast<int16_t>(ColorSpaceFamily::Indexed) == ZM_COLOR_SPACE_INDEXED);

// A ZMColorSpaceHandle is the address of a space in its document's colour space store.
ZMColorSpaceHandle ToHandle(const ColorSpace* space) {
    return reinterpret_cast<ZMColorSpaceHandle>(const_cast<ColorSpace*>(space));
}

// HostError(ZM_ERR_NO_DOCUMENT) without a document, ZM_ERR_BAD_ARGUMENT for a handle that
// names no space of the current one.
const ColorSpace& RequireSpace(ZMColorSpaceHandle handle) {
    const document::Document& document = RequireCurrentDocument();
    const auto* space = reinterpret_cast<const ColorSpace*>(handle);
    if (!document.colorSpaces.Holds(space)) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not a colour space of the current document");
    }
    return *space;
}

template <typename Item>
int32_t CountOf(const std::vector<Item>& items) {
    if (items.size() > static_cast<std::size_t>(std::numeric_limits<int32_t>::max())) {
        throw HostError(ZM_ERR_INTERNAL, "too many to count");
    }
    return static_cast<int32_t>(items.size());
}

template <typename Item>
const Item& NthOf(const std::vector<Item>& items, int32_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= items.size()) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "colour space index out of range");
    }
    return items[static_cast<std::size_t>(index)];
}

ZMErr ZM_API GetColorSpaceFamily(ZMColorSpaceHandle space, int16_t* family) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime&) {
        const ColorSpace& held = RequireSpace(space);
        RequireArguments(family);
        *family = static_cast<int16_t>(held.family);
    });
}

ZMErr ZM_API CountColorants(ZMColorSpaceHandle space, int32_t* count) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime&) {
        const ColorSpace& held = RequireSpace(space);
        RequireArguments(count);
        *count = CountOf(held.colorants);
    });
}

ZMErr ZM_API GetColorantName(ZMColorSpaceHandle space, int32_t index, ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime&) {
        const ColorSpace& held = RequireSpace(space);
        AssignUtf8(name, NthOf(held.colorants, index));
    });
}

ZMErr ZM_API GetBaseColorSpace(ZMColorSpaceHandle space, ZMColorSpaceHandle* base) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime&) {
        const ColorSpace& held = RequireSpace(space);
        RequireArguments(base);
        *base = ToHandle(held.base);
    });
}

ZMErr ZM_API CountColorSpaceMembers(ZMColorSpaceHandle space, int32_t* count) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime&) {
        const ColorSpace& held = RequireSpace(space);
        RequireArguments(count);
        *count = CountOf(held.members);
    });
}

ZMErr ZM_API GetNthColorSpaceMember(ZMColorSpaceHandle space, int32_t index,
                                    ZMColorSpaceHandle* member) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime&) {
        const ColorSpace& held = RequireSpace(space);
        RequireArguments(member);
        *member = ToHandle(NthOf(held.members, index));
    });
}

ZMErr ZM_API GetCustomColorSpace(ZMCustomColorHandle color, ZMColorSpaceHandle* space) {
    return GuardSuiteCall(kSuite, 6, [&](Runtime&) {
        document::Document& document = RequireCurrentDocument();
        const document::CustomColor& swatch = RequireResource(document.swatches, color);
        RequireArguments(space);
        *space = ToHandle(&SwatchColorSpace(document.colorSpaces, swatch));
    });
}

ZMErr ZM_API GetGradientColorSpace(ZMGradientHandle gradient, ZMColorSpaceHandle* space) {
    return GuardSuiteCall(kSuite, 7, [&](Runtime&) {
        document::Document& document = RequireCurrentDocument();
        const document::Gradient& held = RequireResource(document.gradients, gradient);
        RequireArguments(space);
        *space = ToHandle(&GradientColorSpace(document.colorSpaces, held));
    });
}

ZMColorSpaceSuite MakeTable() {
    ZMColorSpaceSuite table{};
    table.GetColorSpaceFamily = GetColorSpaceFamily;
    table.CountColorants = CountColorants;
    table.GetColorantName = GetColorantName;
    table.GetBaseColorSpace = GetBaseColorSpace;
    table.CountColorSpaceMembers = CountColorSpaceMembers;
    table.GetNthColorSpaceMember = GetNthColorSpaceMember;
    table.GetCustomColorSpace = GetCustomColorSpace;
    table.GetGradientColorSpace = GetGradientColorSpace;
    return table;
}

const ZMColorSpaceSuite kTable = MakeTable();

}  // namespace

void RegisterColorSpaceSuite(SuiteRegistry& registry) {
    registry.Add(ZM_COLOR_SPACE_SUITE_NAME, ZM_COLOR_SPACE_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
