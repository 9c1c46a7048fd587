#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zm::host {

enum class DialogKind { SaveFile, OpenFile, ChooseFolder };

// One file dialog as a plug-in asked for it.
struct DialogRecord {
    DialogKind kind;
    std::string prompt;       // UTF-8
    std::string defaultName;  // UTF-8; empty for the dialogs that propose no name
    std::filesystem::path chosen;  // the answer given; empty when cancelled or refused
};

// A headless host cannot ask the user, so the answers are set beforehand (the command's
// --output sets the save answer); no answer is the user cancelling. Each dialog shown is
// recorded, in order. extensions lists file types without dots, separated by ";"; empty
// offers any file.
struct DialogAnswers {
    std::optional<std::filesystem::path> saveAnswer;
    std::optional<std::filesystem::path> openAnswer;
    std::optional<std::filesystem::path> folderAnswer;
    std::vector<DialogRecord> shown;

    // The file to save to: the answer; a folder answered keeps the default name in it; a name
    // without one of the extensions gets the first. Throws HostError(ZM_ERR_USER_CANCELED)
    // without an answer.
    std::filesystem::path Save(std::string prompt, std::string_view extensions,
                               std::string defaultName);
    // An existing file of one of the types; HostError(ZM_ERR_NOT_FOUND) when the answer is
    // none, ZM_ERR_USER_CANCELED without an answer.
    std::filesystem::path Open(std::string prompt, std::string_view extensions);
    // An existing folder; the codes of Open.
    std::filesystem::path ChooseFolder(std::string prompt);
};

}  // namespace zm::host
