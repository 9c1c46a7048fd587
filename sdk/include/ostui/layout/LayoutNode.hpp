#pragma once

#include "ostui/LayoutHints.hpp"
#include "ostui/ThemeFont.hpp"

#include <string>
#include <vector>

namespace ostui {

// The kinds of view a layout resource can hold.
enum class LayoutViewKind {
    SubView,     // a container; "theme" names the background it draws ("panel" or "none")
    List,        // a list box
    Text,        // a multi-line static text showing a localizable key
    GripperGap,  // the room kept free for the resize gripper at the bottom of a panel
};

// One view of a parsed layout, with everything the resource said about it.
struct LayoutNode {
    LayoutViewKind kind = LayoutViewKind::SubView;
    std::string id;
    LayoutHints hints;
    bool takesFocus = true;
    bool border = false;
    ThemeFontSize fontSize = ThemeFontSize::Regular;
    std::string theme = "none";
    std::string text;
    std::vector<LayoutNode> children;
};

// A whole layout resource: its name and the views of its root, top to bottom.
struct LayoutDescription {
    std::string name;
    std::vector<LayoutNode> views;
};

}  // namespace ostui
