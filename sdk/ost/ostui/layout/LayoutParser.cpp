#include "ostui/layout/LayoutParser.hpp"

#include "ostui/ResourceError.hpp"
#include "ostui/XmlResource.hpp"

#include <pugixml.hpp>

#include <map>
#include <set>
#include <tuple>

namespace ostui {

namespace {

struct KindInfo {
    LayoutViewKind kind;
    bool holdsViews;
};

const std::map<std::string, KindInfo, std::less<>> kKinds = {
    {"subview", {LayoutViewKind::SubView, true}},
    {"list", {LayoutViewKind::List, false}},
    {"text", {LayoutViewKind::Text, false}},
    {"gripper-gap", {LayoutViewKind::GripperGap, false}},
};

// Looks a keyword up in a table of the values an attribute allows.
template <typename Value>
Value Keyword(const std::map<std::string, Value, std::less<>>& table, const pugi::xml_attribute& a,
              const std::string& source) {
    auto found = table.find(a.value());
    if (found == table.end()) {
        throw ResourceError(source + ": bad " + a.name() + " \"" + a.value() + "\"");
    }
    return found->second;
}

class Parser {
public:
    explicit Parser(const std::string& source) : source_(source) {}

    void ReadViews(const pugi::xml_node& parent, std::vector<LayoutNode>& views) {
        for (const pugi::xml_node& element : parent.children()) {
            if (element.type() != pugi::node_element) {
                continue;
            }
            auto kind = kKinds.find(element.name());
            if (kind == kKinds.end()) {
                throw ResourceError(source_ + ": unknown view kind <" + element.name() + ">");
            }
            views.push_back(ReadView(element, kind->second));
        }
    }

private:
    LayoutNode ReadView(const pugi::xml_node& element, const KindInfo& info) {
        LayoutNode node;
        node.kind = info.kind;
        if (info.kind == LayoutViewKind::GripperGap) {
            if (element.first_attribute() || element.first_child()) {
                throw ResourceError(source_ + ": a gripper gap takes no attributes");
            }
            return node;
        }
        for (const pugi::xml_attribute& attribute : element.attributes()) {
            ReadAttribute(node, attribute);
        }
        if (!node.id.empty() && !ids_.insert(node.id).second) {
            throw ResourceError(source_ + ": view id \"" + node.id + "\" appears twice");
        }
        if (info.holdsViews) {
            ReadViews(element, node.children);
        } else if (element.find_child([](const pugi::xml_node& n) {
                       return n.type() == pugi::node_element;
                   })) {
            throw ResourceError(source_ + ": <" + element.name() + "> holds no views");
        }
        return node;
    }

    void ReadAttribute(LayoutNode& node, const pugi::xml_attribute& attribute) {
        static const std::map<std::string, bool, std::less<>> booleans = {{"true", true},
                                                                          {"false", false}};
        static const std::map<std::string, std::pair<bool, bool>, std::less<>> fills = {
            {"none", {false, false}},
            {"horizontal", {true, false}},
            {"vertical", {false, true}},
            {"both", {true, true}}};
        static const std::map<std::string, Orientation, std::less<>> orientations = {
            {"vertical", Orientation::Vertical}, {"horizontal", Orientation::Horizontal}};
        static const std::map<std::string, ThemeFontSize, std::less<>> fontSizes = {
            {"small", ThemeFontSize::Small},
            {"regular", ThemeFontSize::Regular},
            {"large", ThemeFontSize::Large}};
        static const std::map<std::string, std::string, std::less<>> themes = {
            {"panel", "panel"}, {"none", "none"}};

        std::string name = attribute.name();
        if (name == "id") {
            node.id = attribute.value();
        } else if (name == "width") {
            node.hints.width = ParseNonNegativeNumber(attribute.value(), source_, "width");
        } else if (name == "height") {
            node.hints.height = ParseNonNegativeNumber(attribute.value(), source_, "height");
        } else if (name == "margin") {
            node.hints.margin = ParseNonNegativeNumber(attribute.value(), source_, "margin");
        } else if (name == "fill") {
            std::tie(node.hints.fillHorizontal, node.hints.fillVertical) =
                Keyword(fills, attribute, source_);
        } else if (name == "focus") {
            node.takesFocus = Keyword(booleans, attribute, source_);
        } else if (name == "border") {
            node.border = Keyword(booleans, attribute, source_);
        } else if (name == "orientation") {
            node.hints.orientation = Keyword(orientations, attribute, source_);
        } else if (name == "font-size") {
            node.fontSize = Keyword(fontSizes, attribute, source_);
        } else if (name == "theme" && node.kind == LayoutViewKind::SubView) {
            node.theme = Keyword(themes, attribute, source_);
        } else if (name == "text" && node.kind == LayoutViewKind::Text) {
            node.text = attribute.value();
        } else {
            throw ResourceError(source_ + ": unknown attribute \"" + name + "\"");
        }
    }

    const std::string& source_;
    std::set<std::string> ids_;
};

}  // namespace

LayoutDescription ParseLayout(std::string_view xml, const std::string& source) {
    pugi::xml_document document;
    pugi::xml_node root = LoadXmlRoot(document, xml, source, "layout");
    LayoutDescription layout;
    for (const pugi::xml_attribute& attribute : root.attributes()) {
        if (std::string(attribute.name()) != "name") {
            throw ResourceError(source + ": unknown layout attribute \"" + attribute.name() +
                                "\"");
        }
        layout.name = attribute.value();
    }
    if (layout.name.empty()) {
        throw ResourceError(source + ": the layout has no name");
    }
    Parser(source).ReadViews(root, layout.views);
    return layout;
}

LayoutDescription ReadLayoutFile(const std::string& file) {
    return ParseLayout(ReadResourceFile(file), file);
}

}  // namespace ostui
