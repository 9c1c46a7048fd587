#pragma once

#include <zelmora/ZMArtTypes.h>

#include "document/Paint.hpp"

namespace zm::host {

// The SDK's colour record of a model colour. The kinds share their codes; custom colours,
// patterns and gradients are named by the model objects' addresses.
ZMColor ToColorRecord(const document::Color& color);

}  // namespace zm::host
