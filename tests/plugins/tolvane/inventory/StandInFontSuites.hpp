#pragma once

#include <shell/SuiteSet.hpp>

#include <zelmora/ZMFontSuite.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace zm::test {

// The host's font suite with every font's info record and Windows name replaced by the
// test's own, for scripts and metrics that no installed font has. The other entries are the
// host's. Stands in for the plug-in's suite pointer while it lives.
class StandInFontSuite {
public:
    StandInFontSuite(const ZMFontInfo& info, std::string windowsName)
        : real_(tolvane::sFontSuite), table_(*real_) {
        info_ = info;
        windowsName_ = std::move(windowsName);
        table_.GetFontInfo = [](ZMFontKey, ZMFontInfo* info) -> ZMErr {
            *info = info_;
            return ZM_ERR_NONE;
        };
        // The bytes as given, cut to the buffer with their NUL.
        table_.GetWindowsName = [](ZMFontKey, char* buffer, int32_t bufferSize) -> ZMErr {
            std::size_t kept =
                std::min(windowsName_.size(), static_cast<std::size_t>(bufferSize) - 1);
            std::memcpy(buffer, windowsName_.data(), kept);
            buffer[kept] = '\0';
            return ZM_ERR_NONE;
        };
        tolvane::sFontSuite = &table_;
    }
    ~StandInFontSuite() { tolvane::sFontSuite = real_; }
    StandInFontSuite(const StandInFontSuite&) = delete;
    StandInFontSuite& operator=(const StandInFontSuite&) = delete;

private:
    static inline ZMFontInfo info_{};
    static inline std::string windowsName_;
    const ZMFontSuite* real_;
    ZMFontSuite table_;
};

// The host's font glue suite with a design-axis count of the test's own for every font, as
// a multiple-master or variable font program would have; none is installed.
class StandInGlueSuite {
public:
    explicit StandInGlueSuite(int32_t axes) : real_(tolvane::sFontGlueSuite), table_(*real_) {
        axes_ = axes;
        asked_ = 0;
        table_.CountDesignAxes = [](ZMPlatformFont, int32_t* count) -> ZMErr {
            ++asked_;
            *count = axes_;
            return ZM_ERR_NONE;
        };
        tolvane::sFontGlueSuite = &table_;
    }
    ~StandInGlueSuite() { tolvane::sFontGlueSuite = real_; }
    StandInGlueSuite(const StandInGlueSuite&) = delete;
    StandInGlueSuite& operator=(const StandInGlueSuite&) = delete;

    // How often the count was asked for.
    int32_t Asked() const { return asked_; }

private:
    static inline int32_t axes_ = 0;
    static inline int32_t asked_ = 0;
    const ZMFontGlueSuite* real_;
    ZMFontGlueSuite table_;
};

}  // namespace zm::test
