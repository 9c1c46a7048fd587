#pragma once

namespace zm::host {

// Plug-ins whose groups the host itself gives a meaning to.
inline constexpr const char* kImageTracePluginName = "Quorvel Image Trace";

}  // namespace zm::host
