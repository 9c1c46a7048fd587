#include "host/loader/TolvanePropertyListBytes.hpp"
#include "support/ScratchFolder.hpp"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace zm::host {
namespace {

using Bytes = std::vector<std::uint8_t>;

std::string ShellQuoted(const std::string& text) {
    std::string quoted = "'";
    for (char c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

std::string ReadText(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream contents;
    contents << stream.rdbuf();
    return contents.str();
}

// One run of the built compiler on a description written into a scratch folder.
class ZmpiplRun {
public:
    explicit ZmpiplRun(const std::string& description) {
        std::ofstream(Input(), std::ios::binary) << description;
        std::string command = ShellQuoted(ZELMORA_TEST_ZMPIPL) + " " +
                              ShellQuoted(Input().string()) + " " + ShellQuoted(Output().string()) +
                              " 2>" + ShellQuoted((folder_.Path() / "stderr.txt").string());
        int status = std::system(command.c_str());
        exitCode_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        errors_ = ReadText(folder_.Path() / "stderr.txt");
    }

    std::filesystem::path Input() const { return folder_.Path() / "description.txt"; }
    std::filesystem::path Output() const { return folder_.Path() / "plugin.pipl"; }
    int ExitCode() const { return exitCode_; }
    const std::string& Errors() const { return errors_; }

    Bytes OutputBytes() const {
        std::ifstream stream(Output(), std::ios::binary);
        return Bytes(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }

    // Neither the output nor the temporary file it is written through.
    bool LeftNoOutput() const {
        std::filesystem::path temporary = Output();
        temporary += ".tmp";
        return !std::filesystem::exists(Output()) && !std::filesystem::exists(temporary);
    }

private:
    zm::test::ScratchFolder folder_;
    int exitCode_ = -1;
    std::string errors_;
};

TEST(ZmpiplTest, CompilesTolvanesDescriptionIntoTheHandWrittenBytes) {
    ZmpiplRun run(
        "# Tolvane\n"
        "vendor QRVL\n"
        "\n"
        "kind HVEA\n"
        "ivrs 2\n"
        "wx86 PluginMain\n"
        "pinm Tolvane\n");
    ASSERT_EQ(run.ExitCode(), 0) << run.Errors();
    EXPECT_EQ(run.OutputBytes(), test::kTolvanePropertyList);
}

TEST(ZmpiplTest, AnUnknownKeyFailsNamingTheLineAndWritesNothing) {
    ZmpiplRun run("vendor QRVL\nkind HVEA\nivrs 2\nwx64 PluginMain\npinm Tolvane\n");
    EXPECT_EQ(run.ExitCode(), 1);
    EXPECT_EQ(run.Errors(), "zmpipl: " + run.Input().string() + ":4: unknown key 'wx64'\n");
    EXPECT_TRUE(run.LeftNoOutput());
}

TEST(ZmpiplTest, ACodeOfTheWrongLengthFailsNamingTheLine) {
    ZmpiplRun run("vendor QRVL\nkind HVEAX\n");
    EXPECT_EQ(run.ExitCode(), 1);
    EXPECT_NE(run.Errors().find(run.Input().string() + ":2: 'HVEAX' has 5 characters"),
              std::string::npos)
        << run.Errors();
    EXPECT_TRUE(run.LeftNoOutput());
}

TEST(ZmpiplTest, AnIntegerThatIsNotOneFailsNamingTheLine) {
    ZmpiplRun run("vendor QRVL\n\nivrs two\n");
    EXPECT_EQ(run.ExitCode(), 1);
    EXPECT_NE(run.Errors().find(run.Input().string() + ":3: 'two' is not an integer"),
              std::string::npos)
        << run.Errors();
    EXPECT_TRUE(run.LeftNoOutput());
}

TEST(ZmpiplTest, APropertyBeforeAnyVendorFails) {
    ZmpiplRun run("kind HVEA\nvendor QRVL\n");
    EXPECT_EQ(run.ExitCode(), 1);
    EXPECT_NE(run.Errors().find(":1: 'kind' comes before any vendor line"), std::string::npos)
        << run.Errors();
    EXPECT_TRUE(run.LeftNoOutput());
}

}  // namespace
}  // namespace zm::host
