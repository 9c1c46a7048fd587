#pragma once

#include "document/Paint.hpp"

#include <zelmora/ZMArtTypes.h>

namespace zm::host {

// A model colour as the suites hand it out: kind by its code, components copied, resources
// named by the model objects' addresses.
ZMColor ToColorRecord(const document::Color& color);

// A model path style as the suites hand it out. Overprint is never set: the model has none.
ZMPathStyle ToPathStyleRecord(const document::PathStyle& style);

}  // namespace zm::host
