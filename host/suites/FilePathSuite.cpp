#include "suites/FilePathObject.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMFilePathSuite.h>

#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_FILE_PATH_SUITE_NAME;

namespace fs = std::filesystem;

// Paths are UTF-8 on this platform, so a path's own text is the plug-in's text.
fs::path FromText(ZMUnicodeString text) { return fs::path(ToUtf8(text)); }

ZMErr ZM_API NewFilePath(ZMFilePath* path) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(path);
        *path = reinterpret_cast<ZMFilePath>(&runtime.objects.Add(std::make_unique<fs::path>()));
    });
}

ZMErr ZM_API DisposeFilePath(ZMFilePath path) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        if (path != nullptr) {
            runtime.objects.Release<fs::path>(path);
        }
    });
}

ZMErr ZM_API SetFromString(ZMFilePath path, ZMUnicodeString text) {
    return GuardSuiteCall(
        kSuite, 2, [&](Runtime& runtime) { RequireFilePath(runtime, path) = FromText(text); });
}

ZMErr ZM_API GetAsString(ZMFilePath path, ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        AssignUtf8(text, RequireFilePath(runtime, path).string());
    });
}

ZMErr ZM_API GetDisplayString(ZMFilePath path, int32_t flags, ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        const fs::path& held = RequireFilePath(runtime, path);
        if ((flags & ZM_FILE_PATH_DISPLAY_FULL) == 0) {
            AssignUtf8(text, held.filename().string());
            return;
        }
        if (held.empty()) {
            AssignUtf8(text, "");
            return;
        }
        std::error_code error;
        fs::path full = fs::absolute(held, error);
        if (error) {
            throw HostError(ZM_ERR_INTERNAL, "no current folder: " + error.message());
        }
        AssignUtf8(text, full.lexically_normal().string());
    });
}

ZMErr ZM_API GetFileName(ZMFilePath path, ZMBool withExtension, ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime& runtime) {
        const fs::path& held = RequireFilePath(runtime, path);
        AssignUtf8(name, (withExtension != 0 ? held.filename() : held.stem()).string());
    });
}

ZMErr ZM_API GetParent(ZMFilePath path, ZMFilePath parent) {
    return GuardSuiteCall(kSuite, 6, [&](Runtime& runtime) {
        fs::path folder = RequireFilePath(runtime, path).parent_path();
        RequireFilePath(runtime, parent) = std::move(folder);
    });
}

ZMErr ZM_API Exists(ZMFilePath path, ZMBool* exists) {
    return GuardSuiteCall(kSuite, 7, [&](Runtime& runtime) {
        const fs::path& held = RequireFilePath(runtime, path);
        RequireArguments(exists);
        std::error_code error;  // a path that cannot be looked at does not exist for the user
        *exists = !held.empty() && fs::exists(held, error) ? 1 : 0;
    });
}

ZMFilePathSuite MakeTable() {
    ZMFilePathSuite table{};
    table.NewFilePath = NewFilePath;
    table.DisposeFilePath = DisposeFilePath;
    table.SetFromString = SetFromString;
    table.GetAsString = GetAsString;
    table.GetDisplayString = GetDisplayString;
    table.GetFileName = GetFileName;
    table.GetParent = GetParent;
    table.Exists = Exists;
    return table;
}

const ZMFilePathSuite kTable = MakeTable();

}  // namespace

void RegisterFilePathSuite(SuiteRegistry& registry) {
    registry.Add(ZM_FILE_PATH_SUITE_NAME, ZM_FILE_PATH_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
