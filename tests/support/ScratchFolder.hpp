#pragma once

#include <filesystem>

namespace zm::test {

// A fresh folder under the system's temporary folder, named for the running test and process
// so that parallel test runs never share one; removed with everything in it at the end.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

}  // namespace zm::test
