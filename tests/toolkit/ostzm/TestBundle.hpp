#pragma once

#include "support/ScratchFolder.hpp"

#include <zelmora/ZMTypes.h>

#include <filesystem>
#include <string>

namespace ostzm::test {

// A bundle folder in a scratch folder holding the Tolvane panel's real layout and menu under
// the resource names the panel asks for, and a plug-in reference that names nothing else.
class TestBundle {
public:
    // `mapLines` is written as the bundle's resources.map.
    explicit TestBundle(const std::string& mapLines = "16002.eve TolvanePanel16002.eve\n"
                                                      "16002.mnu TolvanePanel.mnu\n");

    std::string Folder() const { return folder_.string(); }
    ZMPluginRef Ref() { return reinterpret_cast<ZMPluginRef>(&anchor_); }

private:
    zm::test::ScratchFolder scratch_;
    std::filesystem::path folder_;
    int anchor_ = 0;
};

}  // namespace ostzm::test
