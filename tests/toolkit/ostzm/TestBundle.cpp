#include "toolkit/ostzm/TestBundle.hpp"

#include <fstream>

namespace ostzm::test {

TestBundle::TestBundle(const std::string& mapLines)
    : folder_(scratch_.Path() / "Test.zpl") {
    std::filesystem::path resources = folder_ / "Resources";
    std::filesystem::create_directories(resources);
    std::filesystem::path built = std::filesystem::path(ZELMORA_TEST_BUNDLE) / "Resources";
    for (const char* file : {"TolvanePanel16002.eve", "TolvanePanel.mnu"}) {
        std::filesystem::copy_file(built / file, resources / file);
    }
    std::ofstream(resources / "resources.map") << mapLines;
}

}  // namespace ostzm::test
