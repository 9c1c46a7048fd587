#pragma once

#include "ostcore/Export.hpp"
#include "ostui/MenuEntry.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ostui {

// Reads a menu resource:
//
//   <menu>
//     <item id="1" text="$$$/Group/Key=Selection &amp;Only" checked="false" enabled="true"/>
//     <separator/>
//   </menu>
//
// `id` is a positive integer unique in the menu; `text` is the localizable key (an "&" marks
// the item's mnemonic); `enabled` and `checked` ("true" or "false") are optional and give the
// initial states (enabled, not checked). Throws ResourceError, naming `source`, for anything
// else: bad XML, another root, an unknown element or attribute, a missing or repeated id.
OST_API std::vector<MenuEntry> ParseMenu(std::string_view xml, const std::string& source);

// The same, read from a file.
OST_API std::vector<MenuEntry> ReadMenuFile(const std::string& file);

}  // namespace ostui
