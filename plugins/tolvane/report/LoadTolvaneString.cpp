#include "report/LoadTolvaneString.hpp"

#include "report/Error.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

HostString LoadTolvaneString(StringGroup group, int16_t index) {
    return LoadTolvaneString(group[index]);
}

HostString LoadTolvaneString(const char* key) {
    ZMUnicodeString made = nullptr;
    zm::Check(sUnicodeStringSuite->NewFromLocalizableKey(key, &made));
    return HostString(made);
}

}  // namespace tolvane
