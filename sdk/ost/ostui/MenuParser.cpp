#include "ostui/MenuParser.hpp"

#include "ostui/ResourceError.hpp"
#include "ostui/XmlResource.hpp"

#include <pugixml.hpp>

#include <set>

namespace ostui {

namespace {

MenuEntry ReadItem(const pugi::xml_node& node, const std::string& source) {
    MenuEntry entry;
    bool hasId = false;
    bool hasText = false;
    for (const pugi::xml_attribute& attribute : node.attributes()) {
        std::string name = attribute.name();
        if (name == "id") {
            entry.id = ParsePositiveInteger(attribute.value(), source, "item id");
            hasId = true;
        } else if (name == "text") {
            entry.key = attribute.value();
            hasText = true;
        } else if (name == "enabled") {
            entry.enabled = ParseBoolean(attribute.value(), source, "enabled");
        } else if (name == "checked") {
            entry.checked = ParseBoolean(attribute.value(), source, "checked");
        } else {
            throw ResourceError(source + ": unknown item attribute \"" + name + "\"");
        }
    }
    if (!hasId || !hasText) {
        throw ResourceError(source + ": an item needs an id and a text");
    }
    return entry;
}

}  // namespace

std::vector<MenuEntry> ParseMenu(std::string_view xml, const std::string& source) {
    pugi::xml_document document;
    pugi::xml_node root = LoadXmlRoot(document, xml, source, "menu");
    if (root.first_attribute()) {
        throw ResourceError(source + ": the menu element takes no attributes");
    }
    std::vector<MenuEntry> entries;
    std::set<int> ids;
    for (const pugi::xml_node& node : root.children()) {
        if (node.type() != pugi::node_element) {
            continue;
        }
        std::string kind = node.name();
        if (kind == "separator") {
            if (node.first_attribute() || node.first_child()) {
                throw ResourceError(source + ": a separator is empty");
            }
            MenuEntry separator;
            separator.separator = true;
            entries.push_back(std::move(separator));
        } else if (kind == "item") {
            MenuEntry entry = ReadItem(node, source);
            if (!ids.insert(entry.id).second) {
                throw ResourceError(source + ": item id " + std::to_string(entry.id) +
                                    " appears twice");
            }
            entries.push_back(std::move(entry));
        } else {
            throw ResourceError(source + ": unknown menu element <" + kind + ">");
        }
    }
    return entries;
}

std::vector<MenuEntry> ReadMenuFile(const std::string& file) {
    return ParseMenu(ReadResourceFile(file), file);
}

}  // namespace ostui
