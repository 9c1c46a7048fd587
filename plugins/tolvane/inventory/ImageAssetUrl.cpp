#include "inventory/ImageAssetUrl.hpp"

#include "report/LoadTolvaneString.hpp"
#include "shell/SuiteSet.hpp"

#include <zelmora/ZMARMSuite.h>

#include <string>

namespace tolvane {

namespace {

// Holds the optional asset suite for one look-up and gives it back on every way out.
class AssetSuite {
public:
    AssetSuite() {
        const void* table = nullptr;
        if (sBasicSuite->AcquireSuite(ZM_ARM_SUITE_NAME, ZM_ARM_SUITE_VERSION, &table) ==
            ZM_ERR_NONE) {
            held_ = true;
            suite_ = static_cast<const ZMARMSuite*>(table);
        }
    }
    ~AssetSuite() {
        if (held_) {
            sBasicSuite->ReleaseSuite(ZM_ARM_SUITE_NAME, ZM_ARM_SUITE_VERSION);
        }
    }
    AssetSuite(const AssetSuite&) = delete;
    AssetSuite& operator=(const AssetSuite&) = delete;

    const ZMARMSuite* Get() const { return suite_; }

private:
    bool held_ = false;
    const ZMARMSuite* suite_ = nullptr;
};

// The asset address of the art, empty when there is none to be had.
std::string AssetAddress(ZMArtHandle art) {
    AssetSuite assets;
    if (assets.Get() == nullptr) {
        return {};
    }
    ZMBool available = 0;
    const char* url = nullptr;
    if (assets.Get()->IsAvailable(&available) != ZM_ERR_NONE || available == 0 ||
        assets.Get()->GetAssetUrl(art, &url) != ZM_ERR_NONE || url == nullptr) {
        return {};
    }
    return url;
}

}  // namespace

std::optional<HostString> AssetUrlText(ZMArtHandle art) {
    const std::string address = AssetAddress(art);
    if (address.empty()) {
        return std::nullopt;
    }
    HostString text = LoadTolvaneString(ResDocument, kDocumentUrl);
    text.Append(MakeUnicodeFromBytes(" ", ZM_ENCODING_PLATFORM));
    text.Append(MakeUnicodeFromBytes(address.c_str(), ZM_ENCODING_UTF8));
    return text;
}

}  // namespace tolvane
