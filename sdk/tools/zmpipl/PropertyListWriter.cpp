#include "PropertyListWriter.hpp"

#include <type_traits>
#include <variant>

namespace zm::pipl {

namespace {

// The layout, little-endian throughout and without alignment padding:
//   header    int16 1, int32 version 0, int32 property count
//   property  vendor code, key code, int32 id 0, int32 data length, data
// A four-character code is written as its 32-bit number, so its characters come out reversed
// ("QRVL" as "LVRQ"). The data is padded with zero bytes to a multiple of 4 and the length
// field counts the padded data, so the next property starts where the length says. A string
// is written with its terminator, which always lies inside that length.
constexpr std::uint16_t kFirstValue = 1;
constexpr std::uint32_t kListVersion = 0;
constexpr std::uint32_t kPropertyId = 0;

void AppendU16(std::vector<std::uint8_t>& out, std::uint16_t value) {
    out.push_back(static_cast<std::uint8_t>(value));
    out.push_back(static_cast<std::uint8_t>(value >> 8));
}

void AppendU32(std::vector<std::uint8_t>& out, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) {
        out.push_back(static_cast<std::uint8_t>(value >> shift));
    }
}

std::vector<std::uint8_t> PaddedData(const PropertyValue& value) {
    std::vector<std::uint8_t> data;
    std::visit(
        [&](const auto& v) {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, FourCharCode>) {
                AppendU32(data, v.value);
            } else if constexpr (std::is_same_v<T, std::int32_t>) {
                AppendU32(data, static_cast<std::uint32_t>(v));
            } else {
                data.assign(v.begin(), v.end());
                data.push_back(0);
            }
        },
        value);
    data.resize((data.size() + 3) / 4 * 4, 0);
    return data;
}

}  // namespace

std::vector<std::uint8_t> WritePropertyList(const std::vector<Property>& properties) {
    std::vector<std::uint8_t> out;
    AppendU16(out, kFirstValue);
    AppendU32(out, kListVersion);
    AppendU32(out, static_cast<std::uint32_t>(properties.size()));
    for (const Property& property : properties) {
        std::vector<std::uint8_t> data = PaddedData(property.value);
        AppendU32(out, property.vendor.value);
        AppendU32(out, property.key.value);
        AppendU32(out, kPropertyId);
        AppendU32(out, static_cast<std::uint32_t>(data.size()));
        out.insert(out.end(), data.begin(), data.end());
    }
    return out;
}

}  // namespace zm::pipl
