#include "runtime/AlertLog.hpp"

namespace zm::host {

const char* AlertKindName(AlertKind kind) {
    switch (kind) {
        case AlertKind::Error:
            return "error";
        case AlertKind::Warning:
            return "warning";
        case AlertKind::Message:
            return "message";
    }
    return "alert";
}

}  // namespace zm::host
