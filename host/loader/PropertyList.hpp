#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <stdexcept>
#include <string>

namespace zm::host {

// What the host needs from a bundle's binary property list before it loads any code.
struct PropertyList {
    std::string vendor;            // "QRVL"
    std::string kind;              // "HVEA"
    int32_t interfaceVersion = 0;  // 2, the only one this host supports
    std::string entryPoint;        // the exported function's name, "PluginMain"
    std::string pluginName;        // "Tolvane"
};

class PropertyListError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Parses and validates a whole property list. Throws PropertyListError with a short reason:
// the bytes must hold exactly the properties the header counts, every property must come from
// vendor "QRVL", and kind "HVEA", interface version 2, a non-empty entry point and a non-empty
// plug-in name must each appear once. Properties with other keys are skipped.
PropertyList ParsePropertyList(std::span<const std::uint8_t> bytes);

// Reads the file and parses it; the error message starts with the file's path.
PropertyList ReadPropertyList(const std::filesystem::path& file);

}  // namespace zm::host
