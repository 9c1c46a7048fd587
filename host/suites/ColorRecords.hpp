#pragma once

#include "document/Paint.hpp"

#include <zelmora/ZMArtTypes.h>

namespace zm::host {

// A model colour as the suites hand it out: kind by its code, components copied, resources
// named by the model objects' addresses.
ZMColor ToColorRecord(const document::Color& color);

// A model colour as a fill style. Overprint is never set: the model has none.
ZMFillStyle ToFillStyleRecord(const document::Color& color);

// Whether two records name the same colour: the same kind and the same components, custom
// colour and tint, pattern or gradient. What the record's other kinds would read is ignored.
bool SameColorRecord(const ZMColor& first, const ZMColor& second);

// A model path style as the suites hand it out. Overprint is never set: the model has none.
ZMPathStyle ToPathStyleRecord(const document::PathStyle& style);

}  // namespace zm::host
