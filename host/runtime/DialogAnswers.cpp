#include "runtime/DialogAnswers.hpp"

#include "runtime/HostError.hpp"

#include <system_error>
#include <utility>

namespace zm::host {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> SplitExtensions(std::string_view extensions) {
    std::vector<std::string> list;
    while (!extensions.empty()) {
        std::size_t end = extensions.find(';');
        std::string_view one = extensions.substr(0, end);
        if (!one.empty()) {
            list.emplace_back(one);
        }
        extensions = end == std::string_view::npos ? std::string_view() : extensions.substr(end + 1);
    }
    return list;
}

bool HasOneOf(const fs::path& file, const std::vector<std::string>& extensions) {
    if (extensions.empty()) {
        return true;
    }
    std::string own = file.extension().string();
    for (const std::string& extension : extensions) {
        if (own == "." + extension) {
            return true;
        }
    }
    return false;
}

const fs::path& RequireAnswer(const std::optional<fs::path>& answer) {
    if (!answer) {
        throw HostError(ZM_ERR_USER_CANCELED, "the user cancelled the dialog");
    }
    return *answer;
}

}  // namespace

fs::path DialogAnswers::Save(std::string prompt, std::string_view extensions,
                             std::string defaultName) {
    shown.push_back({DialogKind::SaveFile, std::move(prompt), defaultName, {}});
    fs::path chosen = RequireAnswer(saveAnswer);
    std::error_code error;
    if (fs::is_directory(chosen, error)) {
        if (defaultName.empty()) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "a folder was chosen and no name proposed");
        }
        chosen /= defaultName;  // paths are UTF-8 bytes on this platform
    }
    std::vector<std::string> types = SplitExtensions(extensions);
    if (!HasOneOf(chosen, types)) {
        chosen += "." + types.front();
    }
    shown.back().chosen = chosen;
    return chosen;
}

fs::path DialogAnswers::Open(std::string prompt, std::string_view extensions) {
    shown.push_back({DialogKind::OpenFile, std::move(prompt), {}, {}});
    const fs::path& chosen = RequireAnswer(openAnswer);
    std::error_code error;
    if (!fs::is_regular_file(chosen, error) || !HasOneOf(chosen, SplitExtensions(extensions))) {
        throw HostError(ZM_ERR_NOT_FOUND, "no such file to open: " + chosen.string());
    }
    return chosen;
}

fs::path DialogAnswers::ChooseFolder(std::string prompt) {
    shown.push_back({DialogKind::ChooseFolder, std::move(prompt), {}, {}});
    const fs::path& chosen = RequireAnswer(folderAnswer);
    std::error_code error;
    if (!fs::is_directory(chosen, error)) {
        throw HostError(ZM_ERR_NOT_FOUND, "no such folder: " + chosen.string());
    }
    return chosen;
}

}  // namespace zm::host
