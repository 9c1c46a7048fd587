#pragma once

#include "report/HostString.hpp"

namespace tolvane {

// The two texts a report is written into, line by line: what the panel shows and what Save
// writes to the file. Both start empty; a null string reads as empty and is made on the
// first append.
struct ReportText {
    HostString saveText;     // every appended line ends in "\r\n"
    HostString displayText;  // line ends as each writer asks

    // Empties both, before a refresh or a save.
    void Reset() {
        saveText.Assign(nullptr);
        displayText.Assign(nullptr);
    }
};

}  // namespace tolvane
