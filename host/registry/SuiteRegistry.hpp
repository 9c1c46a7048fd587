#pragma once

#include "registry/SuiteKey.hpp"

#include <zelmora/ZMTypes.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zm::host {

// (name, version) -> table. One table per suite version: every acquisition of the same row
// hands out the same pointer. Acquisitions and releases are counted per row so that a
// plug-in that forgets to give a suite back shows up in tests.
class SuiteRegistry {
public:
    struct Row {
        std::string name;
        int32_t version = 0;
        const void* table = nullptr;
        int64_t acquired = 0;
        int64_t released = 0;
    };

    void Add(std::string name, int32_t version, const void* table);

    // ZM_ERR_SUITE_NOT_FOUND for an unknown name or version (never a near match);
    // *table is left as it was then.
    ZMErr Acquire(std::string_view name, int32_t version, const void** table);
    // ZM_ERR_SUITE_NOT_FOUND for an unknown row, ZM_ERR_BAD_ARGUMENT for a release
    // without a matching acquisition.
    ZMErr Release(std::string_view name, int32_t version);

    // Makes every later acquisition of that row fail with code (0 lifts it).
    void FailAcquisition(std::string_view name, int32_t version, ZMErr code);

    const Row* Find(std::string_view name, int32_t version) const;
    // Rows acquired more often than released, in name order.
    std::vector<const Row*> Outstanding() const;
    const SuiteKeyMap<Row>& Rows() const { return rows_; }
    void ResetCounts();

private:
    Row* FindRow(std::string_view name, int32_t version);

    SuiteKeyMap<Row> rows_;
    SuiteKeyMap<ZMErr> failures_;
};

}  // namespace zm::host
