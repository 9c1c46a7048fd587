#pragma once

#include "ostcore/Export.hpp"
#include "ostui/layout/LayoutNode.hpp"

#include <string>
#include <string_view>

namespace ostui {

// Reads a layout resource (".eve"):
//
//   <layout name="Name">
//     <subview id="Sub" theme="panel" border="false" focus="false" fill="both">
//       <list id="List" focus="false" border="false" font-size="small"
//             orientation="vertical" fill="both"/>
//       <gripper-gap/>
//     </subview>
//   </layout>
//
// Elements: subview (may hold views), list, text (attribute `text`: a localizable key), and
// gripper-gap (no attributes). Attributes of every view but the gripper gap:
//   id           identifier for FindChild (unique in the layout when given)
//   width height the size along an axis the view does not fill (points, default 0)
//   fill         none | horizontal | vertical | both (default none)
//   focus border true | false (defaults true and false)
//   orientation  vertical | horizontal: how the view stacks its children (default vertical)
//   margin       inset of the children from the view's edges (points, default 0)
//   font-size    small | regular | large: the theme font size of its text (default regular)
//   theme        panel | none (subview only)
// Throws ResourceError, naming `source`, for bad XML, another root, a missing name, an
// unknown element, attribute or value, or a repeated id.
OST_API LayoutDescription ParseLayout(std::string_view xml, const std::string& source);

// The same, read from a file.
OST_API LayoutDescription ReadLayoutFile(const std::string& file);

}  // namespace ostui
