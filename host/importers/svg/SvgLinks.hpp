#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zm::host::svg {

// "%20" and the like decoded; malformed escapes are kept as written.
std::string PercentDecode(std::string_view text);

// The file a link names: a file: URI, an absolute path, or a path relative to baseFolder
// (URL escapes decoded). Other schemes (http:) name no local file: the path is the link.
std::filesystem::path ResolveLinkedFile(std::string_view href,
                                        const std::filesystem::path& baseFolder);

struct DataUri {
    std::string mediaType;  // "image/png"; empty when the URI names none
    std::vector<uint8_t> bytes;
};

// A data: URI's media type and decoded bytes (base64, or percent-encoded text); nothing when
// the text is no data: URI or its base64 is broken.
std::optional<DataUri> DecodeDataUri(std::string_view href);

}  // namespace zm::host::svg
