#include "loader/PropertyList.hpp"

#include "loader/TextFile.hpp"
#include "runtime/ErrorText.hpp"

#include <map>
#include <string_view>
#include <vector>

namespace zm::host {

namespace {

// The layout, little-endian throughout and without alignment padding:
//   header    int16 1, int32 version 0, int32 property count
//   property  vendor code, key code, int32 id, int32 data length, data
// A four-character code is the 32-bit number its characters spell, first character most
// significant, so its bytes appear reversed in the file ("QRVL" is stored as "LVRQ"). The
// length field counts the data padded with zero bytes to a multiple of 4, so a property ends
// exactly where its length says and a string's terminator lies inside that length.
constexpr std::size_t kHeaderSize = 2 + 4 + 4;
constexpr std::size_t kPropertyHeaderSize = 4 + 4 + 4 + 4;
constexpr std::uint16_t kFirstValue = 1;
constexpr std::uint32_t kListVersion = 0;
constexpr int32_t kSupportedInterfaceVersion = 2;
constexpr std::string_view kVendor = "QRVL";
constexpr std::string_view kKind = "HVEA";

constexpr std::uint32_t CodeValue(std::string_view code) {
    std::uint32_t value = 0;
    for (char c : code) {
        value = value << 8 | static_cast<std::uint8_t>(c);
    }
    return value;
}

std::string CodeString(std::uint32_t code) {
    std::string text(4, ' ');
    for (std::size_t i = 0; i < 4; ++i) {
        text[i] = static_cast<char>(code >> (24 - 8 * i) & 0xFF);
    }
    return text;
}

std::uint32_t LoadU32(std::span<const std::uint8_t> bytes) {
    return static_cast<std::uint32_t>(bytes[0]) | static_cast<std::uint32_t>(bytes[1]) << 8 |
           static_cast<std::uint32_t>(bytes[2]) << 16 | static_cast<std::uint32_t>(bytes[3]) << 24;
}

// Hands out the bytes front to back. The parser checks Remaining() first so that its message
// can say what was cut short; Take() checks again so that no path can read past the end.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::size_t Remaining() const { return bytes_.size(); }

    std::span<const std::uint8_t> Take(std::size_t count) {
        if (count > bytes_.size()) {
            throw PropertyListError("truncated");
        }
        std::span<const std::uint8_t> taken = bytes_.first(count);
        bytes_ = bytes_.subspan(count);
        return taken;
    }

    std::uint16_t U16() {
        std::span<const std::uint8_t> b = Take(2);
        return static_cast<std::uint16_t>(b[0] | b[1] << 8);
    }

    std::uint32_t U32() { return LoadU32(Take(4)); }

private:
    std::span<const std::uint8_t> bytes_;
};

struct RawProperty {
    std::uint64_t number;  // 1-based, for messages
    std::uint32_t vendor;
    std::uint32_t key;
    std::span<const std::uint8_t> data;  // padded, as the length field counts it
};

std::vector<RawProperty> SplitProperties(std::span<const std::uint8_t> bytes) {
    ByteReader reader(bytes);
    if (reader.Remaining() < kHeaderSize) {
        throw PropertyListError("truncated: the header needs " + std::to_string(kHeaderSize) +
                                " bytes, " + std::to_string(reader.Remaining()) + " present");
    }
    std::uint16_t first = reader.U16();
    if (first != kFirstValue) {
        throw PropertyListError("header starts with " + std::to_string(first) + ", expected " +
                                std::to_string(kFirstValue));
    }
    std::uint32_t version = reader.U32();
    if (version != kListVersion) {
        throw PropertyListError("header says version " + std::to_string(version) + ", expected " +
                                std::to_string(kListVersion));
    }
    std::uint32_t count = reader.U32();

    std::vector<RawProperty> properties;
    for (std::uint64_t number = 1; number <= count; ++number) {
        std::string which = "property " + std::to_string(number) + " of " + std::to_string(count);
        if (reader.Remaining() < kPropertyHeaderSize) {
            throw PropertyListError("truncated: " + which + " needs " +
                                    std::to_string(kPropertyHeaderSize) + " bytes of header, " +
                                    std::to_string(reader.Remaining()) + " remain");
        }
        RawProperty property{number, reader.U32(), reader.U32(), {}};
        reader.U32();  // the id; this host has one property list per bundle and ignores it
        std::uint32_t length = reader.U32();
        if (length % 4 != 0) {
            throw PropertyListError(which + " has data length " + std::to_string(length) +
                                    ", not a multiple of 4");
        }
        if (reader.Remaining() < length) {
            throw PropertyListError("truncated: " + which + " needs " + std::to_string(length) +
                                    " bytes of data, " + std::to_string(reader.Remaining()) +
                                    " remain");
        }
        property.data = reader.Take(length);
        properties.push_back(property);
    }
    if (reader.Remaining() != 0) {
        std::string after = count == 0 ? "the header" : "property " + std::to_string(count);
        throw PropertyListError("count is " + std::to_string(count) + " but " +
                                std::to_string(reader.Remaining()) + " bytes follow " + after);
    }
    return properties;
}

struct KnownKey;
using StoreFunction = void (*)(const KnownKey&, std::span<const std::uint8_t>, PropertyList&);

struct KnownKey {
    std::string_view key;
    std::string_view meaning;
    StoreFunction store;

    std::string Name() const { return std::string(meaning) + " (" + std::string(key) + ")"; }
};

std::uint32_t FourByteData(const KnownKey& known, std::span<const std::uint8_t> data) {
    if (data.size() != 4) {
        throw PropertyListError(known.Name() + " has " + std::to_string(data.size()) +
                                " bytes of data, expected 4");
    }
    return LoadU32(data);
}

std::string StringData(const KnownKey& known, std::span<const std::uint8_t> data) {
    std::string text;
    for (std::uint8_t byte : data) {
        if (byte == 0) {
            if (text.empty()) {
                throw PropertyListError(known.Name() + " is empty");
            }
            return text;
        }
        text.push_back(static_cast<char>(byte));
    }
    throw PropertyListError(known.Name() + " is not zero-terminated");
}

void StoreKind(const KnownKey& known, std::span<const std::uint8_t> data, PropertyList& list) {
    std::uint32_t kind = FourByteData(known, data);
    if (kind != CodeValue(kKind)) {
        throw PropertyListError("kind is " + ErrorText(static_cast<ZMErr>(kind)) + ", expected '" +
                                std::string(kKind) + "'");
    }
    list.kind = CodeString(kind);
}

void StoreInterfaceVersion(const KnownKey& known, std::span<const std::uint8_t> data,
                           PropertyList& list) {
    auto version = static_cast<int32_t>(FourByteData(known, data));
    if (version != kSupportedInterfaceVersion) {
        throw PropertyListError("unsupported interface version " + std::to_string(version));
    }
    list.interfaceVersion = version;
}

void StoreEntryPoint(const KnownKey& known, std::span<const std::uint8_t> data,
                     PropertyList& list) {
    list.entryPoint = StringData(known, data);
}

void StorePluginName(const KnownKey& known, std::span<const std::uint8_t> data,
                     PropertyList& list) {
    list.pluginName = StringData(known, data);
}

// Each must appear exactly once; they are checked in this order.
constexpr KnownKey kKnownKeys[] = {
    {"kind", "plug-in kind", StoreKind},
    {"ivrs", "interface version", StoreInterfaceVersion},
    {"wx86", "entry point", StoreEntryPoint},
    {"pinm", "plug-in name", StorePluginName},
};

}  // namespace

PropertyList ParsePropertyList(std::span<const std::uint8_t> bytes) {
    std::vector<RawProperty> properties = SplitProperties(bytes);

    std::map<std::uint32_t, const RawProperty*> byKey;
    for (const RawProperty& property : properties) {
        std::string which = "property " + std::to_string(property.number);
        if (property.vendor != CodeValue(kVendor)) {
            throw PropertyListError(which + ": vendor " + ErrorText(static_cast<ZMErr>(property.vendor)) +
                                    " is not '" + std::string(kVendor) + "'");
        }
        auto [it, inserted] = byKey.emplace(property.key, &property);
        if (!inserted) {
            throw PropertyListError(which + ": duplicate key " + ErrorText(static_cast<ZMErr>(property.key)) +
                                    ", first in property " + std::to_string(it->second->number));
        }
    }

    PropertyList list;
    list.vendor = kVendor;
    for (const KnownKey& known : kKnownKeys) {
        auto it = byKey.find(CodeValue(known.key));
        if (it == byKey.end()) {
            throw PropertyListError("no " + known.Name());
        }
        known.store(known, it->second->data, list);
    }
    return list;
}

PropertyList ReadPropertyList(const std::filesystem::path& file) {
    std::string contents;
    try {
        contents = ReadTextFile(file);  // its message already starts with the path
    } catch (const std::runtime_error& error) {
        throw PropertyListError(error.what());
    }
    try {
        return ParsePropertyList(std::span<const std::uint8_t>(
            reinterpret_cast<const std::uint8_t*>(contents.data()), contents.size()));
    } catch (const PropertyListError& error) {
        throw PropertyListError(file.string() + ": " + error.what());
    }
}

}  // namespace zm::host
