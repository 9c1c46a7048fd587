#include "importers/svg/SvgColorProfiles.hpp"

#include "importers/svg/SvgImportContext.hpp"
#include "importers/svg/SvgLinks.hpp"
#include "importers/svg/SvgTreeWalk.hpp"

#include <lcms2.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zm::host::svg {

namespace {

struct ProfileCloser {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};

std::string Description(cmsHPROFILE profile) {
    cmsUInt32Number size =
        cmsGetProfileInfoASCII(profile, cmsInfoDescription, "en", "US", nullptr, 0);
    if (size == 0) {
        return {};
    }
    std::vector<char> text(size);
    cmsGetProfileInfoASCII(profile, cmsInfoDescription, "en", "US", text.data(), size);
    return std::string(text.data());
}

}  // namespace

void ReadColorProfiles(ImportContext& context) {
    document::Document& document = context.document;
    ForEachElement(context.root, [&](pugi::xml_node element, std::size_t) {
        if (context.names.SvgName(element) != "color-profile") {
            return;
        }
        std::string_view href = context.names.Href(element);
        if (href.empty()) {
            return;
        }
        std::string file = ResolveLinkedFile(href, context.baseFolder).string();
        std::unique_ptr<void, ProfileCloser> profile(cmsOpenProfileFromFile(file.c_str(), "r"));
        if (!profile) {
            return;
        }
        std::optional<std::string>* slot = nullptr;
        switch (cmsGetColorSpace(profile.get())) {
            case cmsSigGrayData:
                slot = &document.grayProfile;
                break;
            case cmsSigRgbData:
                slot = &document.rgbProfile;
                break;
            case cmsSigCmykData:
                slot = &document.cmykProfile;
                break;
            default:
                return;
        }
        *slot = Description(profile.get());
    });
}

}  // namespace zm::host::svg
