#include "registry/SuiteRegistry.hpp"

#include <stdexcept>

namespace zm::host {

void SuiteRegistry::Add(std::string name, int32_t version, const void* table) {
    if (rows_.count(SuiteKey(name, version)) != 0) {
        throw std::logic_error("suite registered twice: " + name + " version " +
                               std::to_string(version));
    }
    std::pair<std::string, int32_t> key{name, version};
    rows_.emplace(std::move(key), Row{std::move(name), version, table, 0, 0});
}

SuiteRegistry::Row* SuiteRegistry::FindRow(std::string_view name, int32_t version) {
    auto it = rows_.find(SuiteKey(name, version));
    return it == rows_.end() ? nullptr : &it->second;
}

const SuiteRegistry::Row* SuiteRegistry::Find(std::string_view name, int32_t version) const {
    auto it = rows_.find(SuiteKey(name, version));
    return it == rows_.end() ? nullptr : &it->second;
}

ZMErr SuiteRegistry::Acquire(std::string_view name, int32_t version, const void** table) {
    if (table == nullptr) {
        return ZM_ERR_BAD_ARGUMENT;
    }
    auto failure = failures_.find(SuiteKey(name, version));
    if (failure != failures_.end()) {
        return failure->second;
    }
    Row* row = FindRow(name, version);
    if (row == nullptr) {
        return ZM_ERR_SUITE_NOT_FOUND;
    }
    ++row->acquired;
    *table = row->table;
    return ZM_ERR_NONE;
}

ZMErr SuiteRegistry::Release(std::string_view name, int32_t version) {
    Row* row = FindRow(name, version);
    if (row == nullptr) {
        return ZM_ERR_SUITE_NOT_FOUND;
    }
    if (row->released >= row->acquired) {
        return ZM_ERR_BAD_ARGUMENT;
    }
    ++row->released;
    return ZM_ERR_NONE;
}

void SuiteRegistry::FailAcquisition(std::string_view name, int32_t version, ZMErr code) {
    if (code == ZM_ERR_NONE) {
        if (auto it = failures_.find(SuiteKey(name, version)); it != failures_.end()) {
            failures_.erase(it);
        }
    } else {
        failures_[{std::string(name), version}] = code;
    }
}

std::vector<const SuiteRegistry::Row*> SuiteRegistry::Outstanding() const {
    std::vector<const Row*> result;
    for (const auto& [key, row] : rows_) {
        if (row.acquired != row.released) {
            result.push_back(&row);
        }
    }
    return result;
}

void SuiteRegistry::ResetCounts() {
    for (auto& [key, row] : rows_) {
        row.acquired = 0;
        row.released = 0;
    }
}

}  // namespace zm::host
