#pragma once

#include "plugins/tolvane/inventory/ImageBlocks.hpp"
#include "plugins/tolvane/inventory/InventoryFixture.hpp"

#include <inventory/ImageInventory.hpp>

#include <string>
#include <vector>

namespace zm::test {

// The image collectors over documents of tests/fixtures/svg/images: linked.svg (placed files)
// and embedded.svg (data: images). Their descriptions are in ImageBlocks.hpp.
class ImageInventoryFixture : public InventoryFixture {
protected:
    void OpenImages(const std::string& name) { document = &OpenFixture("images", name); }

    ZMErr AddPlaced(const std::string& id) { return tolvane::AddPlacedArt(Art(id)); }
    ZMErr AddLinkedRaster(const std::string& id) { return tolvane::AddRasterArt(Art(id), 1); }
    ZMErr AddRaster(const std::string& id) { return tolvane::AddRasterArt(Art(id), 0); }

    std::vector<std::string> Linked() { return Entries(Lists().linkedImageList); }
    std::vector<std::string> Embedded() { return Entries(Lists().embeddedImageList); }
};

}  // namespace zm::test
