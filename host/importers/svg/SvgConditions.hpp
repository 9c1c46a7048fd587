#pragma once

#include "importers/svg/SvgNames.hpp"

#include <pugixml.hpp>

#include <string_view>

namespace zm::host::svg {

// Whether an element's conditional attributes all hold for this host, whose language is
// en-US and which supports no extensions: requiredExtensions only when empty, systemLanguage
// when one of its tags is "en" or starts with "en-", requiredFeatures always (browsers no
// longer test features). An absent attribute holds.
bool PassesConditions(pugi::xml_node element);

// What a <switch> draws: its first SVG child element, descriptive ones (title, desc,
// metadata) skipped, whose conditions hold; an empty node when none does.
pugi::xml_node ChosenSwitchChild(const SvgNames& names, pugi::xml_node switchElement);

// One systemLanguage value (a comma-separated list of language tags) against en-US.
bool MatchesSystemLanguage(std::string_view tags);

}  // namespace zm::host::svg
