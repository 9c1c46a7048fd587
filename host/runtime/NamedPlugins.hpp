#pragma once

#include <memory>
#include <string>
#include <vector>

namespace zm::host {

// A plug-in that a document names as the maker of a plug-in group ("Quorvel Path Blends").
struct NamedPlugin {
    std::string name;
};

// One record per plug-in name met in documents, kept for the whole run whether or not such a
// plug-in is loaded, so that the plug-in suites can hand out a reference and name it later.
class NamedPlugins {
public:
    // The record of that name, made on first use; it stays put until the host goes.
    NamedPlugin& FindOrAdd(const std::string& name);
    // Null when the address is not one of these records.
    NamedPlugin* Find(const void* address) const;
    const std::vector<std::unique_ptr<NamedPlugin>>& All() const { return records_; }

private:
    std::vector<std::unique_ptr<NamedPlugin>> records_;
};

}  // namespace zm::host
