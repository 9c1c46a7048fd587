#include "importers/svg/SvgImageConverter.hpp"

#include "importers/svg/SvgArtConverter.hpp"
#include "importers/svg/SvgLinks.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <string>

namespace zm::host::svg {

namespace {

using document::Art;
using document::ArtType;

bool HasExtension(const std::filesystem::path& file, std::string_view extension) {
    std::string actual = file.extension().string();
    std::transform(actual.begin(), actual.end(), actual.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return actual == extension;
}

}  // namespace

bool IsRasterFile(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::array<unsigned char, 12> head{};
    if (!in.read(reinterpret_cast<char*>(head.data()), head.size()) && in.gcount() < 2) {
        return false;
    }
    auto starts = [&](std::initializer_list<unsigned char> magic, std::size_t at = 0) {
        return static_cast<std::size_t>(in.gcount()) >= at + magic.size() &&
               std::equal(magic.begin(), magic.end(), head.begin() + static_cast<long>(at));
    };
    return starts({0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A}) ||             // PNG
           starts({0xFF, 0xD8, 0xFF}) ||                                        // JPEG
           starts({'I', 'I', 0x2A, 0x00}) || starts({'M', 'M', 0x00, 0x2A}) ||  // TIFF
           starts({'G', 'I', 'F', '8'}) ||                                      // GIF
           starts({'B', 'M'}) ||                                                // BMP
           (starts({'R', 'I', 'F', 'F'}) && starts({'W', 'E', 'B', 'P'}, 8));   // WebP
}

std::unique_ptr<Art> ConvertImage(SvgArtConverter& converter, pugi::xml_node element,
                                  const Affine& toModel) {
    ImportContext& context = converter.Context();
    auto image = std::make_unique<document::Image>();
    image->href = std::string(context.names.Href(element));
    image->assetUrl = std::string(context.names.Value(element, Vocabulary::Zelmora, "asset-url"));
    std::unique_ptr<Art> art;
    if (auto data = DecodeDataUri(image->href)) {
        art = converter.NewArt(ArtType::Raster, element);
        image->embedded = true;
        image->data = std::move(data->bytes);
        image->mediaType = std::move(data->mediaType);
    } else {
        art = converter.NewArt(ArtType::Placed, element);
        image->file = ResolveLinkedFile(image->href, context.baseFolder);
        std::error_code error;
        image->fileExists =
            !image->href.empty() && std::filesystem::is_regular_file(image->file, error);
        image->fileIsRaster = image->fileExists && IsRasterFile(image->file);
        image->placedType = HasExtension(image->file, ".eps") ? document::PlacedType::Eps
                                                              : document::PlacedType::Other;
    }
    art->bounds = converter.BoxBounds(element, toModel);
    art->image = std::move(image);
    return art;
}

}  // namespace zm::host::svg
