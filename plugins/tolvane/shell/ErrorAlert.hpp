#pragma once

#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Alert severities.
inline constexpr int16_t kAlertError = 1;
inline constexpr int16_t kAlertCaution = 2;
inline constexpr int16_t kAlertNote = 3;

// String lists of the alert texts.
inline constexpr int32_t kAlertMessageList = 19200;  // what failed
inline constexpr int16_t kAlertOutOfMemory = 3;
// The code an alert shows when a survey or statistics record cannot be made.
inline constexpr int32_t kAlertCodeRecord = -2;

// Shows an internal failure as a modal alert: the plug-in's name and the severity word, the
// sentence (messageList, messageIndex), and a detail line with the code and the place of
// failure (context, such as "SetupGlobals:NewHandleClear"). Severities other than 1-3 build
// the text but show nothing. Never fails in a way the caller must handle.
void ShowErrorAlert(int16_t severity, int32_t messageList, int16_t messageIndex, int32_t code,
                    const char* context);

}  // namespace tolvane
