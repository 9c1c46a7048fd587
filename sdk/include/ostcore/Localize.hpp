#pragma once

#include "ostcore/Export.hpp"

#include <boost/function.hpp>

#include <string>

namespace ostcore {

// Turns a localizable key "$$$/Group/Name=Default text" into the text to show. The host
// supplies one per plug-in; without one, DefaultText is used.
using Localizer = boost::function<std::string(const std::string& key)>;

// The text after the key's first "="; a text that is not a key is its own text.
OST_API std::string DefaultText(const std::string& key);

// localizer(key) when there is a localizer, DefaultText(key) otherwise.
OST_API std::string Localize(const Localizer& localizer, const std::string& key);

}  // namespace ostcore
