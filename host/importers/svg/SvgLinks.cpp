#include "importers/svg/SvgLinks.hpp"

#include "importers/svg/SvgNumbers.hpp"

namespace zm::host::svg {

namespace {

int Base64Value(char c) {
    if (c >= 'A' && c <= 'Z') return c - 'A';
    if (c >= 'a' && c <= 'z') return c - 'a' + 26;
    if (c >= '0' && c <= '9') return c - '0' + 52;
    if (c == '+' || c == '-') return 62;
    if (c == '/' || c == '_') return 63;
    return -1;
}

std::optional<std::vector<uint8_t>> DecodeBase64(std::string_view text) {
    std::vector<uint8_t> bytes;
    bytes.reserve(text.size() / 4 * 3);
    uint32_t buffer = 0;
    int bits = 0;
    bool padding = false;
    for (char c : text) {
        if (IsSvgSpace(c)) {
            continue;
        }
        if (c == '=') {
            padding = true;
            continue;
        }
        int value = Base64Value(c);
        if (value < 0 || padding) {
            return std::nullopt;
        }
        buffer = (buffer << 6) | static_cast<uint32_t>(value);
        bits += 6;
        if (bits >= 8) {
            bits -= 8;
            bytes.push_back(static_cast<uint8_t>((buffer >> bits) & 0xff));
        }
    }
    return bytes;
}

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && AsciiLower(text.substr(0, prefix.size())) == prefix;
}

}  // namespace

std::string PercentDecode(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size() && HexDigitValue(text[i + 1]) >= 0 &&
            HexDigitValue(text[i + 2]) >= 0) {
            out += static_cast<char>(HexDigitValue(text[i + 1]) * 16 + HexDigitValue(text[i + 2]));
            i += 2;
        } else {
            out += text[i];
        }
    }
    return out;
}

std::filesystem::path ResolveLinkedFile(std::string_view href,
                                        const std::filesystem::path& baseFolder) {
    href = TrimSvgSpace(href);
    if (StartsWithNoCase(href, "file:")) {
        std::string_view rest = href.substr(5);
        if (rest.starts_with("//")) {
            rest.remove_prefix(2);
            // file://host/path: only the local host names a local file.
            auto slash = rest.find('/');
            rest = slash == std::string_view::npos ? std::string_view() : rest.substr(slash);
        }
        return std::filesystem::path(PercentDecode(rest));
    }
    auto colon = href.find(':');
    auto slash = href.find('/');
    if (colon != std::string_view::npos && colon > 1 &&
        (slash == std::string_view::npos || colon < slash)) {
        return std::filesystem::path(std::string(href));  // another scheme: no local file
    }
    std::filesystem::path path(PercentDecode(href));
    return path.is_absolute() ? path : baseFolder / path;
}

std::optional<DataUri> DecodeDataUri(std::string_view href) {
    href = TrimSvgSpace(href);
    if (!StartsWithNoCase(href, "data:")) {
        return std::nullopt;
    }
    auto comma = href.find(',');
    if (comma == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view header = href.substr(5, comma - 5);
    std::string_view payload = href.substr(comma + 1);
    DataUri uri;
    bool base64 = false;
    std::size_t start = 0;
    bool first = true;
    while (start <= header.size()) {
        auto end = header.find(';', start);
        if (end == std::string_view::npos) {
            end = header.size();
        }
        std::string_view part = TrimSvgSpace(header.substr(start, end - start));
        if (first) {
            uri.mediaType = std::string(part);
        } else if (part == "base64") {
            base64 = true;
        }
        first = false;
        start = end + 1;
    }
    if (base64) {
        auto bytes = DecodeBase64(PercentDecode(payload));
        if (!bytes) {
            return std::nullopt;
        }
        uri.bytes = std::move(*bytes);
    } else {
        std::string text = PercentDecode(payload);
        uri.bytes.assign(text.begin(), text.end());
    }
    return uri;
}

}  // namespace zm::host::svg
