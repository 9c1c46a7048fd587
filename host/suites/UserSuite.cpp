#include "suites/SuiteRegistrations.hpp"

#include "localization/LocaleFacts.hpp"
#include "localization/MeasurementText.hpp"
#include "localization/MeasurementUnits.hpp"
#include "localization/NumberText.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/FilePathObject.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMUserSuite.h>

#include <pwd.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_USER_SUITE_NAME;
constexpr const char* kApplicationName = "Zelmora";
constexpr const char* kUntitledKey = "$$$/Zelmora/Document/Untitled=Untitled";

// Taken when the host library is loaded, which is when the host process starts.
const std::chrono::steady_clock::time_point kStarted = std::chrono::steady_clock::now();

document::RulerUnits CurrentUnits() { return RequireCurrentDocument().rulerUnits; }

document::RulerUnits UnitsFromCode(ZMUnits code) { return UnitOf(code).units; }

icu::UnicodeString UnitsName(Runtime& runtime, document::RulerUnits units,
                             ZMUnitsFormat format) {
    const MeasurementUnit& unit = UnitOf(units);
    switch (format) {
        case ZM_UNITS_FORMAT_ABBREVIATION:
            return icu::UnicodeString(unit.abbreviation, -1, US_INV);
        case ZM_UNITS_FORMAT_SINGULAR:
            return icu::UnicodeString::fromUTF8(runtime.localizer.Localize(unit.singularKey));
        case ZM_UNITS_FORMAT_PLURAL:
            return icu::UnicodeString::fromUTF8(runtime.localizer.Localize(unit.pluralKey));
        default:
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no such units name format");
    }
}

void Assign(ZMUnicodeString target, const icu::UnicodeString& text) {
    icu::UnicodeString& held = Deref(target);
    held = text;
    RequireUsable(held);
}

void ParseInto(Runtime& runtime, ZMUnicodeString text, document::RulerUnits units,
               double* points) {
    RequireArguments(points);
    std::optional<double> length = ParseMeasurement(Read(text), units, runtime.localizer);
    if (!length) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not a length");
    }
    *points = *length;
}

// A time for the C library; seconds the platform's time_t cannot hold are refused.
std::tm LocalTime(int64_t seconds) {
    auto moment = static_cast<std::time_t>(seconds);
    std::tm local{};
    if (static_cast<int64_t>(moment) != seconds || localtime_r(&moment, &local) == nullptr) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "time out of range");
    }
    return local;
}

std::string UserName() {
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 &&
        found != nullptr) {
        return found->pw_name;
    }
    throw HostError(ZM_ERR_NOT_FOUND, "the user has no account entry");
}

std::filesystem::path HomeFolder() {
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') {
        return home;
    }
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 &&
        found != nullptr) {
        return found->pw_dir;
    }
    throw HostError(ZM_ERR_NOT_FOUND, "the user has no home folder");
}

ZMErr ZM_API GetUnitsString(ZMUnitsFormat format, ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        Assign(name, UnitsName(runtime, CurrentUnits(), format));
    });
}

ZMErr ZM_API GetUnitsStringFor(ZMUnits units, ZMUnitsFormat format, ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        Assign(name, UnitsName(runtime, UnitsFromCode(units), format));
    });
}

ZMErr ZM_API GetRulerUnits(ZMUnits* units) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime&) {
        document::RulerUnits current = CurrentUnits();
        RequireArguments(units);
        *units = static_cast<ZMUnits>(current);
    });
}

ZMErr ZM_API SetRulerUnits(ZMUnits units) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime&) {
        document::Document& document = RequireCurrentDocument();
        document.rulerUnits = UnitsFromCode(units);
    });
}

ZMErr ZM_API FormatUnits(double points, int32_t precision, ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        Assign(text, FormatMeasurement(points, CurrentUnits(), precision, runtime.localizer));
    });
}

ZMErr ZM_API FormatUnitsIn(double points, ZMUnits units, int32_t precision,
                           ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime& runtime) {
        Assign(text,
               FormatMeasurement(points, UnitsFromCode(units), precision, runtime.localizer));
    });
}

ZMErr ZM_API ParseUnits(ZMUnicodeString text, double* points) {
    return GuardSuiteCall(kSuite, 6, [&](Runtime& runtime) {
        ParseInto(runtime, text, CurrentUnits(), points);
    });
}

ZMErr ZM_API ParseUnitsIn(ZMUnicodeString text, ZMUnits defaultUnits, double* points) {
    return GuardSuiteCall(kSuite, 7, [&](Runtime& runtime) {
        ParseInto(runtime, text, UnitsFromCode(defaultUnits), points);
    });
}

ZMErr ZM_API ConvertUnits(double value, ZMUnits from, ZMUnits to, double* result) {
    return GuardSuiteCall(kSuite, 8, [&](Runtime&) {
        double fromPoints = UnitOf(from).pointsPerUnit;
        double toPoints = UnitOf(to).pointsPerUnit;
        RequireArguments(result);
        *result = from == to ? value : value * fromPoints / toPoints;
    });
}

ZMErr ZM_API GetPointsPerUnit(ZMUnits units, double* points) {
    return GuardSuiteCall(kSuite, 9, [&](Runtime&) {
        double size = UnitOf(units).pointsPerUnit;
        RequireArguments(points);
        *points = size;
    });
}

ZMErr ZM_API CountUnits(int32_t* count) {
    return GuardSuiteCall(kSuite, 10, [&](Runtime&) {
        RequireArguments(count);
        *count = static_cast<int32_t>(MeasurementUnits().size());
    });
}

ZMErr ZM_API FindUnitsByName(ZMUnicodeString word, ZMUnits* units) {
    return GuardSuiteCall(kSuite, 11, [&](Runtime& runtime) {
        RequireArguments(units);
        std::optional<document::RulerUnits> named = UnitNamed(ToUtf8(word), runtime.localizer);
        if (!named) {
            throw HostError(ZM_ERR_NOT_FOUND, "no units of that name");
        }
        *units = static_cast<ZMUnits>(*named);
    });
}

ZMErr ZM_API BeginProgress(ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 12,
                          [&](Runtime& runtime) { runtime.progress.Begin(ToUtf8(text)); });
}

ZMErr ZM_API SetProgressText(ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 13,
                          [&](Runtime& runtime) { runtime.progress.Retitle(ToUtf8(text)); });
}

ZMErr ZM_API UpdateProgress(int32_t current, int32_t maximum) {
    return GuardSuiteCall(kSuite, 14,
                          [&](Runtime& runtime) { runtime.progress.Update(current, maximum); });
}

ZMErr ZM_API EndProgress() {
    return GuardSuiteCall(kSuite, 15, [&](Runtime& runtime) { runtime.progress.End(); });
}

ZMErr ZM_API IsProgressCancelled(ZMBool* cancelled) {
    return GuardSuiteCall(kSuite, 16, [&](Runtime& runtime) {
        RequireArguments(cancelled);
        *cancelled = runtime.progress.IsCancelled() ? 1 : 0;
    });
}

ZMErr ZM_API GetProgressDepth(int32_t* depth) {
    return GuardSuiteCall(kSuite, 17, [&](Runtime& runtime) {
        RequireArguments(depth);
        *depth = runtime.progress.Depth();
    });
}

ZMErr ZM_API PutFileDialog(ZMUnicodeString prompt, const char* extensions,
                           ZMUnicodeString defaultName, ZMFilePath chosen) {
    return GuardSuiteCall(kSuite, 18, [&](Runtime& runtime) {
        std::filesystem::path& target = RequireFilePath(runtime, chosen);
        target = runtime.dialogs.Save(ToUtf8(prompt), extensions == nullptr ? "" : extensions,
                                      ToUtf8(defaultName));
    });
}

ZMErr ZM_API GetFileDialog(ZMUnicodeString prompt, const char* extensions, ZMFilePath chosen) {
    return GuardSuiteCall(kSuite, 19, [&](Runtime& runtime) {
        std::filesystem::path& target = RequireFilePath(runtime, chosen);
        target = runtime.dialogs.Open(ToUtf8(prompt), extensions == nullptr ? "" : extensions);
    });
}

ZMErr ZM_API GetFolderDialog(ZMUnicodeString prompt, ZMFilePath chosen) {
    return GuardSuiteCall(kSuite, 20, [&](Runtime& runtime) {
        std::filesystem::path& target = RequireFilePath(runtime, chosen);
        target = runtime.dialogs.ChooseFolder(ToUtf8(prompt));
    });
}

ZMErr ZM_API GetApplicationName(ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 21, [&](Runtime&) { AssignUtf8(name, kApplicationName); });
}

ZMErr ZM_API GetApplicationVersion(int32_t* major, int32_t* minor, int32_t* patch) {
    return GuardSuiteCall(kSuite, 22, [&](Runtime&) {
        RequireArguments(major, minor, patch);
        *major = ZELMORA_VERSION_MAJOR;
        *minor = ZELMORA_VERSION_MINOR;
        *patch = ZELMORA_VERSION_PATCH;
    });
}

ZMErr ZM_API GetLocale(ZMUnicodeString tag) {
    return GuardSuiteCall(kSuite, 23,
                          [&](Runtime& runtime) { AssignUtf8(tag, runtime.localizer.Locale()); });
}

ZMErr ZM_API GetLocaleDisplayName(ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 24, [&](Runtime& runtime) {
        Assign(name, LocaleDisplayName(HostLocale(runtime.localizer)));
    });
}

ZMErr ZM_API GetDecimalSeparator(ZMUnicodeString mark) {
    return GuardSuiteCall(kSuite, 25, [&](Runtime& runtime) {
        Assign(mark, DecimalSeparator(HostLocale(runtime.localizer)));
    });
}

ZMErr ZM_API GetGroupingSeparator(ZMUnicodeString mark) {
    return GuardSuiteCall(kSuite, 26, [&](Runtime& runtime) {
        Assign(mark, GroupingSeparator(HostLocale(runtime.localizer)));
    });
}

ZMErr ZM_API IsMetricLocale(ZMBool* metric) {
    return GuardSuiteCall(kSuite, 27, [&](Runtime& runtime) {
        RequireArguments(metric);
        *metric = IsMetric(HostLocale(runtime.localizer)) ? 1 : 0;
    });
}

ZMErr ZM_API GetCurrentTime(int64_t* seconds) {
    return GuardSuiteCall(kSuite, 28, [&](Runtime&) {
        RequireArguments(seconds);
        *seconds = std::chrono::duration_cast<std::chrono::seconds>(
                       std::chrono::system_clock::now().time_since_epoch())
                       .count();
    });
}

ZMErr ZM_API GetLocalDateTime(int64_t seconds, ZMDateTime* dateTime) {
    return GuardSuiteCall(kSuite, 29, [&](Runtime&) {
        RequireArguments(dateTime);
        std::tm local = LocalTime(seconds);
        *dateTime = ZMDateTime{static_cast<int16_t>(local.tm_year + 1900),
                               static_cast<int16_t>(local.tm_mon + 1),
                               static_cast<int16_t>(local.tm_mday),
                               static_cast<int16_t>(local.tm_hour),
                               static_cast<int16_t>(local.tm_min),
                               static_cast<int16_t>(local.tm_sec),
                               static_cast<int16_t>(local.tm_wday)};
    });
}

ZMErr ZM_API FormatDate(int64_t seconds, ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 30, [&](Runtime& runtime) {
        Assign(text, MediumDate(HostLocale(runtime.localizer), seconds));
    });
}

ZMErr ZM_API FormatTime(int64_t seconds, ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 31, [&](Runtime& runtime) {
        Assign(text, ShortTime(HostLocale(runtime.localizer), seconds));
    });
}

ZMErr ZM_API GetElapsedMilliseconds(int64_t* milliseconds) {
    return GuardSuiteCall(kSuite, 32, [&](Runtime&) {
        RequireArguments(milliseconds);
        *milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(
                            std::chrono::steady_clock::now() - kStarted)
                            .count();
    });
}

ZMErr ZM_API GetDocumentDisplayName(ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 33, [&](Runtime& runtime) {
        const document::Document& document = RequireCurrentDocument();
        Deref(name);
        AssignUtf8(name, document.filePath.empty() ? runtime.localizer.Localize(kUntitledKey)
                                                   : document.filePath.filename().string());
    });
}

ZMErr ZM_API GetTemporaryFolder(ZMFilePath folder) {
    return GuardSuiteCall(kSuite, 34, [&](Runtime& runtime) {
        std::filesystem::path& target = RequireFilePath(runtime, folder);
        std::error_code error;
        std::filesystem::path found = std::filesystem::temp_directory_path(error);
        if (error) {
            throw HostError(ZM_ERR_NOT_FOUND, "no folder for temporary files");
        }
        target = found;
    });
}

ZMErr ZM_API GetApplicationFolder(ZMFilePath folder) {
    return GuardSuiteCall(kSuite, 35, [&](Runtime& runtime) {
        std::filesystem::path& target = RequireFilePath(runtime, folder);
        std::error_code error;
        std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
        if (error) {
            throw HostError(ZM_ERR_NOT_FOUND, "the running program cannot be found");
        }
        target = program.parent_path();
    });
}

ZMErr ZM_API IsHeadless(ZMBool* headless) {
    return GuardSuiteCall(kSuite, 36, [&](Runtime&) {
        RequireArguments(headless);
        *headless = 1;  // this host has no windows yet
    });
}

void Record(Runtime& runtime, AlertKind kind, ZMUnicodeString text) {
    runtime.alerts.push_back({kind, ToUtf8(text)});
}

ZMErr ZM_API WarningAlert(ZMUnicodeString text, const char* /*dontAskKey: never silenced here*/) {
    return GuardSuiteCall(kSuite, 37,
                          [&](Runtime& runtime) { Record(runtime, AlertKind::Warning, text); });
}

ZMErr ZM_API GetUserName(ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 38, [&](Runtime&) {
        Deref(name);
        AssignUtf8(name, UserName());
    });
}

ZMErr ZM_API GetHomeFolder(ZMFilePath folder) {
    return GuardSuiteCall(kSuite, 39, [&](Runtime& runtime) {
        std::filesystem::path& target = RequireFilePath(runtime, folder);
        target = HomeFolder();
    });
}

ZMErr ZM_API GetDefaultUnits(ZMUnits* units) {
    return GuardSuiteCall(kSuite, 40, [&](Runtime&) {
        RequireArguments(units);
        *units = static_cast<ZMUnits>(document::Document{}.rulerUnits);
    });
}

ZMErr ZM_API ErrorAlert(ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 41,
                          [&](Runtime& runtime) { Record(runtime, AlertKind::Error, text); });
}

ZMErr ZM_API MessageAlert(ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 42,
                          [&](Runtime& runtime) { Record(runtime, AlertKind::Message, text); });
}

const ZMUserSuite kTable = {
    GetUnitsString,          // 0
    GetUnitsStringFor,       // 1
    GetRulerUnits,           // 2
    SetRulerUnits,           // 3
    FormatUnits,             // 4
    FormatUnitsIn,           // 5
    ParseUnits,              // 6
    ParseUnitsIn,            // 7
    ConvertUnits,            // 8
    GetPointsPerUnit,        // 9
    CountUnits,              // 10
    FindUnitsByName,         // 11
    BeginProgress,           // 12
    SetProgressText,         // 13
    UpdateProgress,          // 14
    EndProgress,             // 15
    IsProgressCancelled,     // 16
    GetProgressDepth,        // 17
    PutFileDialog,           // 18
    GetFileDialog,           // 19
    GetFolderDialog,         // 20
    GetApplicationName,      // 21
    GetApplicationVersion,   // 22
    GetLocale,               // 23
    GetLocaleDisplayName,    // 24
    GetDecimalSeparator,     // 25
    GetGroupingSeparator,    // 26
    IsMetricLocale,          // 27
    GetCurrentTime,          // 28
    GetLocalDateTime,        // 29
    FormatDate,              // 30
    FormatTime,              // 31
    GetElapsedMilliseconds,  // 32
    GetDocumentDisplayName,  // 33
    GetTemporaryFolder,      // 34
    GetApplicationFolder,    // 35
    IsHeadless,              // 36
    WarningAlert,            // 37
    GetUserName,             // 38
    GetHomeFolder,           // 39
    GetDefaultUnits,         // 40
    ErrorAlert,              // 41
    MessageAlert,            // 42
};

}  // namespace

void RegisterUserSuite(SuiteRegistry& registry) {
    registry.Add(ZM_USER_SUITE_NAME, ZM_USER_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
