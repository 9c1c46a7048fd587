#include "runtime/Runtime.hpp"

#include "runtime/HostError.hpp"
#include "suites/SuiteCatalogue.hpp"

namespace zm::host {

namespace {
Runtime* current = nullptr;
}

Runtime::Runtime() {
    if (current != nullptr) {
        throw HostError(ZM_ERR_INTERNAL, "a host runtime already exists in this process");
    }
    RegisterAllSuites(suites);
    current = this;
}

Runtime::~Runtime() {
    plugins.StopAll();
    current = nullptr;
}

Runtime& Runtime::Current() {
    if (current == nullptr) {
        throw HostError(ZM_ERR_NOT_STARTED, "no host runtime");
    }
    return *current;
}

}  // namespace zm::host
