#include "host/suites/DocumentSuiteFixture.hpp"

#include "support/RecordingReporter.hpp"

#include <zelmora/ZMFilePathSuite.h>
#include <zelmora/ZMUserSuite.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace zm::host {
namespace {

// The alerts keep the positions plug-ins call them by; the rest fill the table around them.
static_assert(offsetof(ZMUserSuite, GetUnitsString) == 0);
static_assert(offsetof(ZMUserSuite, IsHeadless) == 36 * sizeof(void*));
static_assert(offsetof(ZMUserSuite, WarningAlert) == 37 * sizeof(void*));
static_assert(offsetof(ZMUserSuite, GetDefaultUnits) == 40 * sizeof(void*));
static_assert(offsetof(ZMUserSuite, ErrorAlert) == 41 * sizeof(void*));
static_assert(sizeof(ZMUserSuite) == 43 * sizeof(void*));

using document::RulerUnits;

using zm::test::RecordingReporter;

class UserSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_USER_SUITE_NAME, ZM_USER_SUITE_VERSION, user);
        Acquire(ZM_FILE_PATH_SUITE_NAME, ZM_FILE_PATH_SUITE_VERSION, paths);
    }

    document::Document& OpenIn(RulerUnits units) {
        document::Document& document = Open();
        document.rulerUnits = units;
        return document;
    }

    std::string UnitsName(ZMUnitsFormat format) {
        ZMUnicodeString name = String();
        EXPECT_EQ(user->GetUnitsString(format, name), ZM_ERR_NONE);
        return Text(name);
    }

    std::string Formatted(double points, int32_t precision = ZM_UNITS_DEFAULT_PRECISION) {
        ZMUnicodeString text = String();
        EXPECT_EQ(user->FormatUnits(points, precision, text), ZM_ERR_NONE);
        return Text(text);
    }

    const ZMUserSuite* user = nullptr;
};

TEST_F(UserSuiteTest, EveryEntryIsFilledIn) {
    const auto* entries = reinterpret_cast<void (*const*)()>(user);
    for (std::size_t index = 0; index < sizeof(ZMUserSuite) / sizeof(void*); ++index) {
        EXPECT_NE(entries[index], nullptr) << "entry " << index;
    }
}

TEST_F(UserSuiteTest, UnitsNamesFollowTheCurrentDocumentsRulerUnits) {
    struct Expected {
        RulerUnits units;
        const char* abbreviation;
        const char* singular;
        const char* plural;
    };
    const Expected all[] = {
        {RulerUnits::Points, "pt", "Point", "Points"},
        {RulerUnits::Pixels, "px", "Pixel", "Pixels"},
        {RulerUnits::Inches, "in", "Inch", "Inches"},
        {RulerUnits::Millimeters, "mm", "Millimeter", "Millimeters"},
        {RulerUnits::Centimeters, "cm", "Centimeter", "Centimeters"},
        {RulerUnits::Picas, "pc", "Pica", "Picas"},
    };
    document::Document& document = Open();
    for (const Expected& expected : all) {
        document.rulerUnits = expected.units;
        EXPECT_EQ(UnitsName(ZM_UNITS_FORMAT_ABBREVIATION), expected.abbreviation);
        EXPECT_EQ(UnitsName(ZM_UNITS_FORMAT_SINGULAR), expected.singular);
        EXPECT_EQ(UnitsName(ZM_UNITS_FORMAT_PLURAL), expected.plural);
    }
}

TEST_F(UserSuiteTest, UnitsNamesAreLocalizedButAbbreviationsAreNot) {
    runtime.localizer.AddTranslation("$$$/Zelmora/Units/Millimeters", "Millimeter (de)");
    OpenIn(RulerUnits::Millimeters);
    EXPECT_EQ(UnitsName(ZM_UNITS_FORMAT_PLURAL), "Millimeter (de)");
    EXPECT_EQ(UnitsName(ZM_UNITS_FORMAT_ABBREVIATION), "mm");
}

TEST_F(UserSuiteTest, UnitsEntriesNeedADocumentAndKnownCodes) {
    ZMUnicodeString text = String();
    double points = 0;
    ZMUnits units = 0;
    EXPECT_EQ(user->GetUnitsString(ZM_UNITS_FORMAT_PLURAL, text), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(user->FormatUnits(612, ZM_UNITS_DEFAULT_PRECISION, text), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(user->ParseUnits(String("12"), &points), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(user->GetRulerUnits(&units), ZM_ERR_NO_DOCUMENT);
    Open();
    EXPECT_EQ(user->GetUnitsString(3, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(user->GetUnitsString(ZM_UNITS_FORMAT_PLURAL, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(user->GetUnitsStringFor(6, ZM_UNITS_FORMAT_PLURAL, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(user->GetUnitsStringFor(-1, ZM_UNITS_FORMAT_PLURAL, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(user->SetRulerUnits(6), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Text(text), "");
}

TEST_F(UserSuiteTest, ALetterPageWidthPrintsInEveryUnit) {
    // 612 pt is 8.5 in (612 / 72); a CSS pixel is 0.75 pt, so 816 px; 8.5 in * 25.4 is
    // 215.9 mm and 21.59 cm; a pica is 12 pt, so 51 pc.
    document::Document& document = Open();
    const std::pair<RulerUnits, const char*> expected[] = {
        {RulerUnits::Points, "612 pt"},        {RulerUnits::Pixels, "816 px"},
        {RulerUnits::Inches, "8.5 in"},        {RulerUnits::Millimeters, "215.9 mm"},
        {RulerUnits::Centimeters, "21.59 cm"}, {RulerUnits::Picas, "51 pc"},
    };
    for (const auto& [units, text] : expected) {
        document.rulerUnits = units;
        EXPECT_EQ(Formatted(612), text);
    }
}

TEST_F(UserSuiteTest, TheDefaultPrecisionStopsAtThreeDecimals) {
    OpenIn(RulerUnits::Millimeters);
    // 100 pt * 25.4 / 72 = 35.2777... mm, rounded at the third decimal.
    EXPECT_EQ(Formatted(100), "35.278 mm");
    // 792 pt = 11 in = 279.4 mm: trailing zeros dropped.
    EXPECT_EQ(Formatted(792), "279.4 mm");
}

TEST_F(UserSuiteTest, AnExplicitPrecisionKeepsItsZeros) {
    OpenIn(RulerUnits::Millimeters);
    EXPECT_EQ(Formatted(612, 2), "215.90 mm");
    EXPECT_EQ(Formatted(612, 0), "216 mm");  // 215.9 rounds up
    ZMUnicodeString text = String();
    EXPECT_EQ(user->FormatUnits(612, -2, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(user->FormatUnits(std::nan(""), 2, text), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(UserSuiteTest, LengthsUseTheLocalesDecimalMarkAndNoGrouping) {
    runtime.localizer.SetLocale("de-DE");
    OpenIn(RulerUnits::Millimeters);
    EXPECT_EQ(Formatted(612), "215,9 mm");
    // 2000 in are 144000 pt; a length is never grouped.
    ZMUnicodeString text = String();
    EXPECT_EQ(user->FormatUnitsIn(144000, ZM_UNITS_INCHES, ZM_UNITS_DEFAULT_PRECISION, text),
              ZM_ERR_NONE);
    EXPECT_EQ(Text(text), "2000 in");
}

TEST_F(UserSuiteTest, ParsingTakesTheUnitWordOrTheCurrentUnits) {
    OpenIn(RulerUnits::Picas);
    double points = 0;
    EXPECT_EQ(user->ParseUnits(String("215.9 mm"), &points), ZM_ERR_NONE);
    EXPECT_NEAR(points, 612, 1e-9);  // the letter width back
    EXPECT_EQ(user->ParseUnits(String("3in"), &points), ZM_ERR_NONE);
    EXPECT_NEAR(points, 216, 1e-9);  // 3 * 72
    EXPECT_EQ(user->ParseUnits(String("2 Points"), &points), ZM_ERR_NONE);
    EXPECT_NEAR(points, 2, 1e-9);
    EXPECT_EQ(user->ParseUnits(String(" 12 "), &points), ZM_ERR_NONE);
    EXPECT_NEAR(points, 144, 1e-9);  // bare: 12 picas of 12 pt
    EXPECT_EQ(user->ParseUnitsIn(String("10"), ZM_UNITS_PIXELS, &points), ZM_ERR_NONE);
    EXPECT_NEAR(points, 7.5, 1e-9);  // 10 * 0.75
}

TEST_F(UserSuiteTest, ParsingReadsTheLocalesNumbers) {
    runtime.localizer.SetLocale("de-DE");
    OpenIn(RulerUnits::Points);
    double points = 0;
    EXPECT_EQ(user->ParseUnits(String("1,5 cm"), &points), ZM_ERR_NONE);
    EXPECT_NEAR(points, 1.5 * 720 / 25.4, 1e-9);  // a centimetre is 720 / 25.4 pt
}

TEST_F(UserSuiteTest, TextThatIsNotALengthIsRefusedAndTheValueKept) {
    OpenIn(RulerUnits::Points);
    double points = 5;
    EXPECT_EQ(user->ParseUnits(String("12 furlongs"), &points), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(user->ParseUnits(String("mm"), &points), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(user->ParseUnits(String(""), &points), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(user->ParseUnits(String("12"), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(points, 5);
}

TEST_F(UserSuiteTest, UnitsConvertThroughPoints) {
    double result = 0;
    EXPECT_EQ(user->ConvertUnits(1, ZM_UNITS_INCHES, ZM_UNITS_MILLIMETERS, &result), ZM_ERR_NONE);
    EXPECT_NEAR(result, 25.4, 1e-12);
    EXPECT_EQ(user->ConvertUnits(3, ZM_UNITS_PICAS, ZM_UNITS_PIXELS, &result), ZM_ERR_NONE);
    EXPECT_NEAR(result, 48, 1e-12);  // 36 pt / 0.75
    EXPECT_EQ(user->GetPointsPerUnit(ZM_UNITS_INCHES, &result), ZM_ERR_NONE);
    EXPECT_EQ(result, 72);
    int32_t count = 0;
    EXPECT_EQ(user->CountUnits(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 6);
    ZMUnits units = -1;
    EXPECT_EQ(user->FindUnitsByName(String("CENTIMETERS"), &units), ZM_ERR_NONE);
    EXPECT_EQ(units, ZM_UNITS_CENTIMETERS);
    EXPECT_EQ(user->FindUnitsByName(String("cubits"), &units), ZM_ERR_NOT_FOUND);
}

TEST_F(UserSuiteTest, RulerUnitsAreTheDocumentsOwn) {
    document::Document& document = OpenIn(RulerUnits::Inches);
    ZMUnits units = -1;
    EXPECT_EQ(user->GetRulerUnits(&units), ZM_ERR_NONE);
    EXPECT_EQ(units, ZM_UNITS_INCHES);
    EXPECT_EQ(user->SetRulerUnits(ZM_UNITS_PICAS), ZM_ERR_NONE);
    EXPECT_EQ(document.rulerUnits, RulerUnits::Picas);
    EXPECT_EQ(user->GetDefaultUnits(&units), ZM_ERR_NONE);
    EXPECT_EQ(units, ZM_UNITS_PIXELS);  // a new document measures in SVG's pixels
}

TEST_F(UserSuiteTest, ProgressReachesTheReporterOnceForNestedWork) {
    RecordingReporter reporter;
    runtime.progress.SetReporter(&reporter);
    EXPECT_EQ(user->BeginProgress(String("Document Info...")), ZM_ERR_NONE);
    EXPECT_EQ(user->UpdateProgress(0, 8), ZM_ERR_NONE);
    EXPECT_EQ(user->BeginProgress(String("Fonts")), ZM_ERR_NONE);
    int32_t depth = 0;
    EXPECT_EQ(user->GetProgressDepth(&depth), ZM_ERR_NONE);
    EXPECT_EQ(depth, 2);
    EXPECT_EQ(user->EndProgress(), ZM_ERR_NONE);
    EXPECT_EQ(user->SetProgressText(String("Done")), ZM_ERR_NONE);
    EXPECT_EQ(user->UpdateProgress(9, 8), ZM_ERR_NONE);  // past the end shows the end
    EXPECT_EQ(user->EndProgress(), ZM_ERR_NONE);
    runtime.progress.SetReporter(nullptr);
    EXPECT_EQ(reporter.calls,
              (std::vector<std::string>{"begin Document Info...", "update 0/8", "retitle Fonts",
                                        "retitle Done", "update 8/8", "end"}));
}

TEST_F(UserSuiteTest, ProgressWithoutABeginIsRefused) {
    RecordingReporter reporter;
    runtime.progress.SetReporter(&reporter);
    EXPECT_EQ(user->UpdateProgress(1, 2), ZM_ERR_CANT);
    EXPECT_EQ(user->SetProgressText(String("x")), ZM_ERR_CANT);
    EXPECT_EQ(user->EndProgress(), ZM_ERR_CANT);
    EXPECT_EQ(user->BeginProgress(String("Work")), ZM_ERR_NONE);
    EXPECT_EQ(user->UpdateProgress(-1, 2), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(user->UpdateProgress(1, -2), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(user->EndProgress(), ZM_ERR_NONE);
    runtime.progress.SetReporter(nullptr);
    EXPECT_EQ(reporter.calls, (std::vector<std::string>{"begin Work", "end"}));
}

TEST_F(UserSuiteTest, CancellingIsAskedOfTheReporterOnlyWhileProgressIsShown) {
    RecordingReporter reporter;
    reporter.cancelled = true;
    runtime.progress.SetReporter(&reporter);
    ZMBool cancelled = -1;
    EXPECT_EQ(user->IsProgressCancelled(&cancelled), ZM_ERR_NONE);
    EXPECT_EQ(cancelled, 0);  // nothing is running to stop
    EXPECT_EQ(user->BeginProgress(String("Work")), ZM_ERR_NONE);
    EXPECT_EQ(user->IsProgressCancelled(&cancelled), ZM_ERR_NONE);
    EXPECT_EQ(cancelled, 1);
    EXPECT_EQ(user->EndProgress(), ZM_ERR_NONE);
    runtime.progress.SetReporter(nullptr);
}

TEST_F(UserSuiteTest, TheSaveDialogAnswersWithTheConfiguredPath) {
    runtime.dialogs.saveAnswer = "/tmp/out/poster report.txt";
    ZMFilePath chosen = NewPath();
    EXPECT_EQ(user->PutFileDialog(String("Save Document Info As:"), nullptr,
                                  String("poster Info.txt"), chosen),
              ZM_ERR_NONE);
    EXPECT_EQ(PathOf(chosen), "/tmp/out/poster report.txt");
    ASSERT_EQ(runtime.dialogs.shown.size(), 1u);
    EXPECT_EQ(runtime.dialogs.shown[0].kind, DialogKind::SaveFile);
    EXPECT_EQ(runtime.dialogs.shown[0].prompt, "Save Document Info As:");
    EXPECT_EQ(runtime.dialogs.shown[0].defaultName, "poster Info.txt");
}

TEST_F(UserSuiteTest, WithoutAnAnswerTheSaveDialogIsCancelled) {
    ZMFilePath chosen = NewPath();
    runtime.objects.Require<std::filesystem::path>(chosen) = "/kept";
    EXPECT_EQ(user->PutFileDialog(String("Save"), nullptr, String("Info.txt"), chosen),
              ZM_ERR_USER_CANCELED);
    EXPECT_EQ(ZM_ERR_USER_CANCELED, ZM_FOUR_CHAR('S', 'T', 'O', 'P'));
    EXPECT_EQ(PathOf(chosen), "/kept");
    EXPECT_EQ(runtime.dialogs.shown.size(), 1u);  // shown, then cancelled
}

TEST_F(UserSuiteTest, AFolderAnswerKeepsTheDefaultNameAndAMissingTypeIsAdded) {
    std::filesystem::path folder = std::filesystem::temp_directory_path();
    runtime.dialogs.saveAnswer = folder;
    ZMFilePath chosen = NewPath();
    EXPECT_EQ(user->PutFileDialog(String("Save"), nullptr, String("Info.txt"), chosen),
              ZM_ERR_NONE);
    EXPECT_EQ(PathOf(chosen), folder / "Info.txt");
    runtime.dialogs.saveAnswer = "/tmp/report";
    EXPECT_EQ(user->PutFileDialog(String("Save"), "txt;csv", String("Info.txt"), chosen),
              ZM_ERR_NONE);
    EXPECT_EQ(PathOf(chosen), "/tmp/report.txt");
    runtime.dialogs.saveAnswer = "/tmp/report.csv";
    EXPECT_EQ(user->PutFileDialog(String("Save"), "txt;csv", String("Info.txt"), chosen),
              ZM_ERR_NONE);
    EXPECT_EQ(PathOf(chosen), "/tmp/report.csv");  // one of the types already
}

TEST_F(UserSuiteTest, DialogsNeedAPathTheHostMade) {
    runtime.dialogs.saveAnswer = "/tmp/x.txt";
    EXPECT_EQ(user->PutFileDialog(String("Save"), nullptr, String("x"), nullptr),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(user->PutFileDialog(String("Save"), nullptr, String("x"),
                                  zm::test::ForeignHandle<ZMFilePath>()),
              ZM_ERR_BAD_ARGUMENT);
}

TEST_F(UserSuiteTest, OpenAndFolderDialogsAnswerOnlyWithWhatExists) {
    ZMFilePath chosen = NewPath();
    EXPECT_EQ(user->GetFileDialog(String("Open"), nullptr, chosen), ZM_ERR_USER_CANCELED);
    runtime.dialogs.openAnswer = "/no/such/file.svg";
    EXPECT_EQ(user->GetFileDialog(String("Open"), nullptr, chosen), ZM_ERR_NOT_FOUND);
    std::filesystem::path folder = std::filesystem::temp_directory_path();
    runtime.dialogs.folderAnswer = folder;
    EXPECT_EQ(user->GetFolderDialog(String("Folder"), chosen), ZM_ERR_NONE);
    EXPECT_EQ(PathOf(chosen), folder);
    runtime.dialogs.openAnswer = folder;  // a folder is not a file to open
    EXPECT_EQ(user->GetFileDialog(String("Open"), nullptr, chosen), ZM_ERR_NOT_FOUND);
}

TEST_F(UserSuiteTest, TheApplicationAndLocaleDescribeThemselves) {
    ZMUnicodeString text = String();
    EXPECT_EQ(user->GetApplicationName(text), ZM_ERR_NONE);
    EXPECT_EQ(Text(text), "Zelmora");
    int32_t major = -1, minor = -1, patch = -1;
    EXPECT_EQ(user->GetApplicationVersion(&major, &minor, &patch), ZM_ERR_NONE);
    EXPECT_EQ(major, 0);  // the project is at 0.1.0
    EXPECT_EQ(minor, 1);
    EXPECT_EQ(patch, 0);
    EXPECT_EQ(user->GetLocale(text), ZM_ERR_NONE);
    EXPECT_EQ(Text(text), "en-US");
    EXPECT_EQ(user->GetLocaleDisplayName(text), ZM_ERR_NONE);
    EXPECT_EQ(Text(text), "English (United States)");
    ZMBool flag = -1;
    EXPECT_EQ(user->IsMetricLocale(&flag), ZM_ERR_NONE);
    EXPECT_EQ(flag, 0);  // the United States measure in inches
    EXPECT_EQ(user->IsHeadless(&flag), ZM_ERR_NONE);
    EXPECT_EQ(flag, 1);
}

TEST_F(UserSuiteTest, SeparatorsComeFromTheLocale) {
    ZMUnicodeString mark = String();
    EXPECT_EQ(user->GetDecimalSeparator(mark), ZM_ERR_NONE);
    EXPECT_EQ(Text(mark), ".");
    EXPECT_EQ(user->GetGroupingSeparator(mark), ZM_ERR_NONE);
    EXPECT_EQ(Text(mark), ",");
    runtime.localizer.SetLocale("de-DE");
    EXPECT_EQ(user->GetDecimalSeparator(mark), ZM_ERR_NONE);
    EXPECT_EQ(Text(mark), ",");
    EXPECT_EQ(user->GetGroupingSeparator(mark), ZM_ERR_NONE);
    EXPECT_EQ(Text(mark), ".");
    ZMBool metric = -1;
    EXPECT_EQ(user->IsMetricLocale(&metric), ZM_ERR_NONE);
    EXPECT_EQ(metric, 1);
}

TEST_F(UserSuiteTest, LocalTimesFollowTheCalendar) {
    // 86400 * 365 s after 1970-01-01 is 1971-01-01 (1970 was not a leap year), a Friday;
    // taken at noon UTC, so that the local date is that day in the time zones from UTC-11 to
    // UTC+11 whichever the machine is in.
    ZMDateTime when{};
    EXPECT_EQ(user->GetLocalDateTime(int64_t{86400} * 365 + 12 * 3600, &when), ZM_ERR_NONE);
    EXPECT_EQ(when.year, 1971);
    EXPECT_EQ(when.month, 1);
    EXPECT_EQ(when.day, 1);
    EXPECT_EQ(when.weekday, 5);
    ZMUnicodeString text = String();
    EXPECT_EQ(user->FormatDate(int64_t{86400} * 365 + 12 * 3600, text), ZM_ERR_NONE);
    EXPECT_EQ(Text(text), "Jan 1, 1971");
    int64_t now = 0;
    EXPECT_EQ(user->GetCurrentTime(&now), ZM_ERR_NONE);
    EXPECT_GT(now, int64_t{1700000000});  // after November 2023, when this was written
}

TEST_F(UserSuiteTest, TheDocumentsTitleIsItsFileNameOrUntitled) {
    document::Document& document = Open();
    ZMUnicodeString name = String();
    EXPECT_EQ(user->GetDocumentDisplayName(name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "Untitled");
    document.filePath = "/work/poster.svg";
    EXPECT_EQ(user->GetDocumentDisplayName(name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "poster.svg");
}

TEST_F(UserSuiteTest, FoldersOfTheSystemAreFilledIn) {
    ZMFilePath folder = NewPath();
    EXPECT_EQ(user->GetTemporaryFolder(folder), ZM_ERR_NONE);
    EXPECT_EQ(PathOf(folder), std::filesystem::temp_directory_path());
    EXPECT_EQ(user->GetApplicationFolder(folder), ZM_ERR_NONE);
    EXPECT_EQ(PathOf(folder), std::filesystem::read_symlink("/proc/self/exe").parent_path());
    EXPECT_EQ(user->GetHomeFolder(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(UserSuiteTest, ElapsedTimeNeverGoesBack) {
    int64_t first = -1, second = -1;
    EXPECT_EQ(user->GetElapsedMilliseconds(&first), ZM_ERR_NONE);
    EXPECT_EQ(user->GetElapsedMilliseconds(&second), ZM_ERR_NONE);
    EXPECT_GE(first, 0);
    EXPECT_GE(second, first);
}

}  // namespace
}  // namespace zm::host
