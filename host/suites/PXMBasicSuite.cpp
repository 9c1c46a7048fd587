#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/PXMBasicSuite.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <string>

namespace zm::host {

namespace {

std::string_view FindKey(Runtime& runtime, ZMPluginRef plugin, int32_t listId, int32_t index) {
    LoadedPlugin* loaded = runtime.plugins.Find(plugin);
    if (loaded == nullptr) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown plug-in");
    }
    if (index < 1) {
        throw HostError(ZM_ERR_NOT_FOUND, "string indexes start at 1");
    }
    // Summed wide: past the largest id there is no string, not a wrap to the lowest ones.
    int64_t id = int64_t{listId} + index;
    auto key = id > std::numeric_limits<int32_t>::max()
                   ? std::nullopt
                   : loaded->bundle.strings.Find(static_cast<int32_t>(id));
    if (!key) {
        throw HostError(ZM_ERR_NOT_FOUND, "no such string");
    }
    return *key;
}

// At most maxLength bytes and a NUL; a UTF-8 sequence is never split.
void CopyText(std::string_view text, char* buffer, int32_t maxLength) {
    auto length = static_cast<std::size_t>(maxLength);
    if (text.size() > length) {
        while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0u) == 0x80u) {
            --length;
        }
        text = text.substr(0, length);
    }
    std::memcpy(buffer, text.data(), text.size());
    buffer[text.size()] = '\0';
}

void CheckBuffer(char* buffer, int32_t maxLength) {
    RequireArguments(buffer);
    if (maxLength < 0) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "negative length");
    }
}

ZMErr ZM_API GetIndexedString(ZMPluginRef plugin, int32_t listId, int32_t index, char* buffer,
                              int32_t maxLength) {
    return GuardSuiteCall(ZM_PXM_BASIC_SUITE_NAME, 0, [&](Runtime& runtime) {
        CheckBuffer(buffer, maxLength);
        std::string text = runtime.localizer.Localize(FindKey(runtime, plugin, listId, index));
        CopyText(text, buffer, maxLength);
    });
}

ZMErr ZM_API GetIndexedStringKey(ZMPluginRef plugin, int32_t listId, int32_t index,
                                 char* buffer, int32_t maxLength) {
    return GuardSuiteCall(ZM_PXM_BASIC_SUITE_NAME, 1, [&](Runtime& runtime) {
        CheckBuffer(buffer, maxLength);
        CopyText(FindKey(runtime, plugin, listId, index), buffer, maxLength);
    });
}

const PXMBasicSuite kTable = {GetIndexedString, GetIndexedStringKey};

}  // namespace

void RegisterPXMBasicSuite(SuiteRegistry& registry) {
    registry.Add(ZM_PXM_BASIC_SUITE_NAME, ZM_PXM_BASIC_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
