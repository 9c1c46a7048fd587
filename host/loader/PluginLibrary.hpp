#pragma once

#include <zelmora/ZMPluginMain.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace zm::host {

class LibraryError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// One dlopen'ed plug-in module and its entry point; closing it unloads the code.
class PluginLibrary {
public:
    PluginLibrary() = default;
    // Throws LibraryError with the reason (the loader's message names the file) when the
    // module or the entry point is missing.
    PluginLibrary(const std::filesystem::path& file, const std::string& entryPoint);
    ~PluginLibrary();
    PluginLibrary(PluginLibrary&& other) noexcept;
    PluginLibrary& operator=(PluginLibrary&& other) noexcept;
    PluginLibrary(const PluginLibrary&) = delete;
    PluginLibrary& operator=(const PluginLibrary&) = delete;

    bool IsOpen() const { return handle_ != nullptr; }
    ZMPluginMainProc Entry() const { return entry_; }
    void Close();

private:
    void* handle_ = nullptr;
    ZMPluginMainProc entry_ = nullptr;
};

}  // namespace zm::host
