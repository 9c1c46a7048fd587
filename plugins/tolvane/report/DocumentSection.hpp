#pragma once

#include "report/ReportText.hpp"

#include <zelmora/ZMTypes.h>

namespace tolvane {

// The "Document:" section of the current document, read from the host as it is written:
// name, colour mode and profile, ruler units, artboard dimensions and the document settings,
// one line each. 0, or the code of the first failing call among those the section cannot do
// without (title, colour model, profiles, profile name, setup, text resources and their
// flags); no line follows such a failure.
ZMErr AppendDocumentSection(ReportText& text);

}  // namespace tolvane
