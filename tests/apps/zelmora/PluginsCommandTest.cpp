#include "support/CommandRun.hpp"
#include "support/ScratchFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace zm::test {
namespace {

namespace fs = std::filesystem;

constexpr int kExitDone = 0;
constexpr int kExitBadArguments = 2;

// Each skipped bundle gets one line on standard error: this, then "<bundle path>: <reason>".
constexpr std::string_view kSkippedPrefix = "zelmora: skipped plug-in bundle ";

// Every listing below holds only plug-ins named "Tolvane", so the NAME column is 7 wide (the
// widest name; "NAME" itself would need only 4): "NAME" plus 3 spaces of padding, then the two
// spaces that separate every column.
const std::string kHeader = "NAME     KIND  INTERFACE  BUNDLE\n";

// "Tolvane" fills its 7-wide column; kind "HVEA" fills the 4 letters of KIND; interface
// version 2 is padded to the width of "INTERFACE" (9), so 8 spaces plus the 2 of the column
// gap; the bundle folder ends the line.
std::string TolvaneLine(const fs::path& bundle) {
    return "Tolvane  HVEA  2          " + bundle.string() + "\n";
}

// The command reaches the build tree's plug-in folder through its own location and lists the
// bundle under the resolved folder, so a symbolic link on the way would not show.
fs::path BuildBundle() { return fs::canonical(ZELMORA_TEST_BUNDLE); }

// The build bundle is always found beside the command, so a run whose extra bundle was skipped
// still lists exactly that one.
std::string OnlyTheBuildBundle() { return kHeader + TolvaneLine(BuildBundle()); }

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) {
            end = text.size();
        }
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

// Standard error is exactly one skip line for the bundle, and its reason holds every word.
::testing::AssertionResult ReportsOneSkip(const std::string& errors, const fs::path& bundle,
                                          std::initializer_list<std::string> words) {
    std::vector<std::string> lines = Lines(errors);
    if (lines.size() != 1) {
        return ::testing::AssertionFailure()
               << "expected one line on standard error, got " << lines.size() << ":\n"
               << errors;
    }
    std::string start = std::string(kSkippedPrefix) + bundle.string() + ": ";
    if (lines[0].rfind(start, 0) != 0) {
        return ::testing::AssertionFailure()
               << "expected the line to start with \"" << start << "\", got:\n"
               << lines[0];
    }
    std::string reason = lines[0].substr(start.size());
    for (const std::string& word : words) {
        if (reason.find(word) == std::string::npos) {
            return ::testing::AssertionFailure()
                   << "the reason \"" << reason << "\" does not mention \"" << word << "\"";
        }
    }
    return ::testing::AssertionSuccess();
}

std::string ReadBytes(const fs::path& file, std::streamoff offset, std::size_t count) {
    std::ifstream stream(file, std::ios::binary);
    stream.seekg(offset);
    std::string bytes(count, '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(count));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

void OverwriteBytes(const fs::path& file, std::streamoff offset, std::string_view bytes) {
    std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
    stream.seekp(offset);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void WriteText(const fs::path& file, std::string_view text) {
    std::ofstream(file, std::ios::binary) << text;
}

// Each test copies the build bundle into its own plug-in folder, breaks the copy, and runs
// `zelmora --plugin-dir FOLDER plugins`.
class PluginsCommandTest : public ::testing::Test {
protected:
    // As the command prints it: it lists a bundle under the resolved form of its folder, and
    // the temporary folder may sit behind a symbolic link.
    fs::path PluginFolder() const { return fs::canonical(scratch_.Path()); }

    // An exact copy of the build bundle, named "<name>.zpl".
    fs::path CopyBundle(const std::string& name) const {
        fs::path copy = PluginFolder() / (name + ".zpl");
        fs::copy(ZELMORA_TEST_BUNDLE, copy, fs::copy_options::recursive);
        return copy;
    }

    // A copy that is whole under its new name: the host expects "<name>.so" in "<name>.zpl",
    // so the shared object is renamed too, and the only fault is the one the test puts in.
    fs::path CopyWholeBundle(const std::string& name) const {
        fs::path copy = CopyBundle(name);
        fs::rename(copy / "Tolvane.so", copy / (name + ".so"));
        return copy;
    }

    CommandResult RunPlugins() const {
        return RunCommand(ZELMORA_TEST_COMMAND,
                          {"--plugin-dir", PluginFolder().string(), "plugins"});
    }

    // The run skipped the broken copy with a reason holding every word, and went on as if the
    // copy were not there.
    void ExpectSkipped(const fs::path& copy, std::initializer_list<std::string> words) const {
        CommandResult run = RunPlugins();
        EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
        EXPECT_EQ(run.output, OnlyTheBuildBundle());
        EXPECT_TRUE(ReportsOneSkip(run.errors, copy, words));
    }

private:
    ScratchFolder scratch_;
};

TEST_F(PluginsCommandTest, ListsTheBuildBundleWhenNoFolderIsGiven) {
    CommandResult run = RunCommand(ZELMORA_TEST_COMMAND, {"plugins"});
    EXPECT_EQ(run.exitStatus, kExitDone);
    EXPECT_EQ(run.output, OnlyTheBuildBundle());
    EXPECT_EQ(run.errors, "");  // nothing skipped, no alert
}

TEST_F(PluginsCommandTest, ListsTheBuildBundleOnceWhenItsFolderIsGivenToo) {
    // The same folder reached twice, once as given and once beside the command, must not
    // list its bundles twice.
    CommandResult run =
        RunCommand(ZELMORA_TEST_COMMAND, {"--plugin-dir", ZELMORA_TEST_PLUGIN_DIR, "plugins"});
    EXPECT_EQ(run.exitStatus, kExitDone);
    EXPECT_EQ(run.output, OnlyTheBuildBundle());
    EXPECT_EQ(run.errors, "");
}

TEST_F(PluginsCommandTest, SkipsABundleWhosePropertyListIsTruncated) {
    fs::path copy = CopyBundle("Broken");
    // 20 bytes: the 10-byte list header and part of the first property's 16-byte header.
    fs::resize_file(copy / "plugin.pipl", 20);
    ExpectSkipped(copy, {"truncated"});
}

TEST_F(PluginsCommandTest, SkipsABundleOfTheWrongKind) {
    fs::path copy = CopyWholeBundle("WrongKind");
    // The kind is the first property: its 4 data bytes follow the 10-byte list header and the
    // property's own 16-byte header, and hold "HVEA" least significant byte first.
    constexpr std::streamoff kKindOffset = 10 + 16;
    fs::path propertyList = copy / "plugin.pipl";
    ASSERT_EQ(ReadBytes(propertyList, kKindOffset, 4), "AEVH");
    OverwriteBytes(propertyList, kKindOffset, "XXXX");
    ExpectSkipped(copy, {"kind", "XXXX"});
}

TEST_F(PluginsCommandTest, SkipsABundleWithoutItsSharedObject) {
    // The host looks for the shared object named after the bundle, and this copy still holds
    // only Tolvane.so.
    fs::path copy = CopyBundle("Other");
    ExpectSkipped(copy, {"Other.so"});
}

TEST_F(PluginsCommandTest, SkipsABundleWithoutItsResourceMap) {
    fs::path copy = CopyWholeBundle("NoResourceMap");
    fs::remove(copy / "Resources" / "resources.map");
    ExpectSkipped(copy, {"resources.map"});
}

TEST_F(PluginsCommandTest, SkipsABundleWhoseSharedObjectCannotBeLoaded) {
    fs::path copy = CopyWholeBundle("Unloadable");
    fs::path sharedObject = copy / "Unloadable.so";
    WriteText(sharedObject, "not a shared object\n");
    ExpectSkipped(copy, {sharedObject.string()});
}

TEST_F(PluginsCommandTest, ExitsWithBadArgumentsWithoutASubcommand) {
    CommandResult run = RunCommand(ZELMORA_TEST_COMMAND, {});
    EXPECT_EQ(run.exitStatus, kExitBadArguments);
    EXPECT_EQ(run.output, "");
    EXPECT_NE(run.errors, "");  // the user is told what is wrong
}

TEST_F(PluginsCommandTest, ExitsWithBadArgumentsOnAnUnknownOption) {
    CommandResult run = RunCommand(ZELMORA_TEST_COMMAND, {"--no-such-option", "plugins"});
    EXPECT_EQ(run.exitStatus, kExitBadArguments);
    EXPECT_EQ(run.output, "");
    EXPECT_NE(run.errors, "");
}

TEST_F(PluginsCommandTest, LoadsASecondGoodCopyBesideTheBuildBundle) {
    fs::path copy = CopyWholeBundle("Tolvane2");
    CommandResult run = RunPlugins();
    EXPECT_EQ(run.exitStatus, kExitDone);
    // The folders given on the command line are scanned before the one beside the command.
    // The copy carries the same property list, so it is named Tolvane too.
    EXPECT_EQ(run.output, kHeader + TolvaneLine(copy) + TolvaneLine(BuildBundle()));
    EXPECT_EQ(run.errors, "");  // neither plug-in raised an alert, nothing skipped
}

TEST_F(PluginsCommandTest, PrintsAnAlertRaisedAtStartUpInFullOnStandardError) {
    // The first block the host hands out is Tolvane's globals block; failing it makes
    // start-up raise the out-of-memory alert and fail, so the bundle is skipped.
    CommandResult run = RunCommand(ZELMORA_TEST_COMMAND, {"--fail-allocation", "1", "plugins"});
    EXPECT_EQ(run.exitStatus, kExitDone);
    EXPECT_EQ(run.output, kHeader.substr(0, 4) + "  KIND  INTERFACE  BUNDLE\n");  // no plug-in
    // The alert's kind, then its whole text as the plug-in built it (title and sentence,
    // "\n\r", the detail line, two empty parts), then the skip it caused.
    EXPECT_EQ(run.errors,
              "zelmora: error alert:\n"
              "Document Info Error:\r\r"
              "The filter cannot complete because there isn^}t enough memory (RAM) available:"
              "\r\r\n\rFilter error:!MEM  SetupGlobals:NewHandleClear\n\r\n\r\n" +
                  std::string(kSkippedPrefix) + BuildBundle().string() +
                  ": start-up failed with code '!MEM'\n");
}

}  // namespace
}  // namespace zm::test
