#pragma once

namespace zm::host::svg {

struct ImportContext;

// Each <color-profile> whose linked ICC file Little CMS can open names the document's
// profile of that file's colour space (gray, RGB or CMYK) by the file's description. A
// profile that cannot be read is left out, as if not declared.
void ReadColorProfiles(ImportContext& context);

}  // namespace zm::host::svg
