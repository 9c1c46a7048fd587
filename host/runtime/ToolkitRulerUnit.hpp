#pragma once

#include "runtime/DocumentList.hpp"

namespace zm::host {

// While it lives, the UI toolkit's ruler unit (its custom unit 2) is the ruler unit of the
// current document, read at each question, and points when no document is open; plug-ins
// that format lengths through the toolkit then follow the document as it is now.
class ToolkitRulerUnit {
public:
    explicit ToolkitRulerUnit(const DocumentList& documents);
    ~ToolkitRulerUnit();
    ToolkitRulerUnit(const ToolkitRulerUnit&) = delete;
    ToolkitRulerUnit& operator=(const ToolkitRulerUnit&) = delete;
};

}  // namespace zm::host
