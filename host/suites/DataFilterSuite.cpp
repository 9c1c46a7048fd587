#include "suites/FilePathObject.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/ZMDataFilterSuite.h>

#include <memory>
#include <string_view>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_DATA_FILTER_SUITE_NAME;

DataFilterMode ModeNamed(const char* mode) {
    std::string_view name(mode);
    if (name == "read") {
        return DataFilterMode::Read;
    }
    if (name == "write") {
        return DataFilterMode::Write;
    }
    throw HostError(ZM_ERR_BAD_ARGUMENT, "a data filter reads or writes");
}

ZMErr ZM_API NewFileDataFilter(ZMFilePath path, const char* mode, uint32_t creator, uint32_t type,
                               ZMDataFilter* filter) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        const std::filesystem::path& target = RequireFilePath(runtime, path);
        RequireArguments(mode, filter);
        if (target.empty()) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "a data filter needs a file");
        }
        auto made = std::make_unique<DataFilter>(target, ModeNamed(mode), creator, type);
        *filter = static_cast<ZMDataFilter>(runtime.dataFilters.Add(std::move(made)));
    });
}

ZMErr ZM_API LinkDataFilter(ZMDataFilter prior, ZMDataFilter filter) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        DataFilter& linked = runtime.dataFilters.Require(filter);
        // A file filter is where a chain ends: nothing can come before it.
        if (prior != nullptr) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "a file data filter ends its chain");
        }
        linked.Link();
    });
}

ZMErr ZM_API UnlinkDataFilter(ZMDataFilter filter, ZMErr error) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        ZMErr result = runtime.dataFilters.Require(filter).Unlink(error);
        runtime.dataFilters.Dispose(filter);
        if (result != ZM_ERR_NONE) {
            throw HostError(result, "the data filter's file was not written");
        }
    });
}

ZMErr ZM_API ReadDataFilter(ZMDataFilter filter, void* buffer, size_t* count) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        DataFilter& reading = runtime.dataFilters.Require(filter);
        RequireArguments(buffer, count);
        *count = reading.Read(buffer, *count);
    });
}

ZMErr ZM_API WriteDataFilter(ZMDataFilter filter, const void* buffer, size_t count) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        DataFilter& writing = runtime.dataFilters.Require(filter);
        RequireArguments(buffer);
        writing.Write(buffer, count);
    });
}

ZMDataFilterSuite MakeTable() {
    ZMDataFilterSuite table{};
    table.NewFileDataFilter = NewFileDataFilter;
    table.LinkDataFilter = LinkDataFilter;
    table.UnlinkDataFilter = UnlinkDataFilter;
    table.ReadDataFilter = ReadDataFilter;
    table.WriteDataFilter = WriteDataFilter;
    return table;
}

const ZMDataFilterSuite kTable = MakeTable();

}  // namespace

void RegisterDataFilterSuite(SuiteRegistry& registry) {
    registry.Add(ZM_DATA_FILTER_SUITE_NAME, ZM_DATA_FILTER_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
