#include "runtime/NamedPlugins.hpp"

namespace zm::host {

NamedPlugin& NamedPlugins::FindOrAdd(const std::string& name) {
    for (const auto& record : records_) {
        if (record->name == name) {
            return *record;
        }
    }
    records_.push_back(std::make_unique<NamedPlugin>(NamedPlugin{name}));
    return *records_.back();
}

NamedPlugin* NamedPlugins::Find(const void* address) const {
    for (const auto& record : records_) {
        if (record.get() == address) {
            return record.get();
        }
    }
    return nullptr;
}

}  // namespace zm::host
