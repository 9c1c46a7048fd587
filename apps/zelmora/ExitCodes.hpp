#pragma once

namespace zelmora {

// The command's exit statuses.
inline constexpr int kExitDone = 0;
inline constexpr int kExitNotWritten = 1;  // the report or the usage log could not be written
inline constexpr int kExitBadArguments = 2;
inline constexpr int kExitCannotOpen = 3;
inline constexpr int kExitPluginNotLoaded = 4;

}  // namespace zelmora
