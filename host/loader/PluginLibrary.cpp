#include "loader/PluginLibrary.hpp"

#include <dlfcn.h>

#include <utility>

namespace zm::host {

PluginLibrary::PluginLibrary(const std::filesystem::path& file, const std::string& entryPoint) {
    // RTLD_LOCAL keeps each plug-in's symbols to itself; RTLD_NOW finds a missing symbol
    // here rather than halfway through a message.
    handle_ = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle_ == nullptr) {
        const char* reason = dlerror();
        throw LibraryError(std::string("cannot be loaded: ") + (reason ? reason : file.string()));
    }
    void* symbol = dlsym(handle_, entryPoint.c_str());
    if (symbol == nullptr) {
        dlclose(handle_);
        handle_ = nullptr;
        throw LibraryError(file.filename().string() + " has no entry point " + entryPoint);
    }
    entry_ = reinterpret_cast<ZMPluginMainProc>(symbol);
}

PluginLibrary::~PluginLibrary() { Close(); }

PluginLibrary::PluginLibrary(PluginLibrary&& other) noexcept
    : handle_(std::exchange(other.handle_, nullptr)), entry_(std::exchange(other.entry_, nullptr)) {}

PluginLibrary& PluginLibrary::operator=(PluginLibrary&& other) noexcept {
    if (this != &other) {
        Close();
        handle_ = std::exchange(other.handle_, nullptr);
        entry_ = std::exchange(other.entry_, nullptr);
    }
    return *this;
}

void PluginLibrary::Close() {
    if (handle_ != nullptr) {
        dlclose(handle_);
        handle_ = nullptr;
        entry_ = nullptr;
    }
}

}  // namespace zm::host
