#pragma once

namespace zm::host::svg {

struct ImportContext;

// The root's size (width and height with their units, else the viewBox's size in pixels,
// else 300 x 150 pixels as a browser takes it) into the document setup, and the map from
// the root's user units to model points into the context. Call before any art is made.
void ReadRootGeometry(ImportContext& context);

// The document settings the root and its metadata carry: colour model, ruler units,
// artboards (zm:artboard elements, else Inkscape pages, else one the size of the
// document), the text, paper and image display settings and the substitution highlights.
void ReadDocumentSettings(ImportContext& context);

}  // namespace zm::host::svg
