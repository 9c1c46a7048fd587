#pragma once

#include "runtime/Runtime.hpp"

#include <zelmora/ZMArtTypes.h>

#include <filesystem>

namespace zm::host {

// A ZMFilePath is a path the host keeps in Runtime::objects until the plug-in disposes of it.
inline std::filesystem::path& RequireFilePath(Runtime& runtime, ZMFilePath handle) {
    return runtime.objects.Require<std::filesystem::path>(handle);
}

}  // namespace zm::host
