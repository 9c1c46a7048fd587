#include "loader/PropertyList.hpp"

#include "host/loader/TolvanePropertyListBytes.hpp"
#include "support/ScratchFolder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace zm::host {
namespace {

using test::kTolvanePropertyList;
using Bytes = std::vector<std::uint8_t>;

// The reason ParsePropertyList gives for rejecting the bytes. Any other exception escapes and
// fails the test; so does a successful parse.
std::string RejectionOf(const Bytes& bytes) {
    try {
        ParsePropertyList(bytes);
    } catch (const PropertyListError& error) {
        return error.what();
    }
    ADD_FAILURE() << "the bytes parsed";
    return {};
}

::testing::AssertionResult Mentions(const std::string& message, std::string_view part) {
    if (message.find(part) != std::string::npos) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "'" << message << "' does not mention '" << part << "'";
}

Bytes TolvaneWith(std::size_t offset, const Bytes& replacement) {
    Bytes bytes = kTolvanePropertyList;
    std::copy(replacement.begin(), replacement.end(), bytes.begin() + offset);
    return bytes;
}

Bytes TolvaneWithCount(std::uint8_t count) {
    return TolvaneWith(test::kCountOffset, {count, 0, 0, 0});
}

// Tolvane's list with one more property after the plug-in name.
Bytes TolvaneWithFifthProperty(const Bytes& property) {
    Bytes bytes = TolvaneWithCount(5);
    bytes.insert(bytes.end(), property.begin(), property.end());
    return bytes;
}

Bytes ReadBytes(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file;
    return Bytes(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
}

void WriteBytes(const std::filesystem::path& file, const Bytes& bytes) {
    std::ofstream stream(file, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(stream) << file;
}

TEST(PropertyListTest, TolvanesBytesParseIntoItsFields) {
    PropertyList list = ParsePropertyList(kTolvanePropertyList);
    EXPECT_EQ(list.vendor, "QRVL");
    EXPECT_EQ(list.kind, "HVEA");
    EXPECT_EQ(list.interfaceVersion, 2);
    EXPECT_EQ(list.entryPoint, "PluginMain");
    EXPECT_EQ(list.pluginName, "Tolvane");
}

TEST(PropertyListTest, TheBuiltBundleHoldsExactlyTheseBytes) {
    EXPECT_EQ(ReadBytes(ZELMORA_TEST_BUNDLE "/plugin.pipl"), kTolvanePropertyList);
}

TEST(PropertyListTest, TheBuiltBundlesFileReadsBackAsTolvane) {
    PropertyList list = ReadPropertyList(ZELMORA_TEST_BUNDLE "/plugin.pipl");
    EXPECT_EQ(list.entryPoint, "PluginMain");
    EXPECT_EQ(list.pluginName, "Tolvane");
}

TEST(PropertyListTest, EveryShorterPrefixIsRejected) {
    for (std::size_t length = 0; length < kTolvanePropertyList.size(); ++length) {
        SCOPED_TRACE("length " + std::to_string(length));
        // A copy of exactly that size, so that a read past its end lands in the sanitizer's
        // red zone rather than in the rest of the list.
        Bytes prefix(kTolvanePropertyList.begin(), kTolvanePropertyList.begin() + length);
        EXPECT_THROW(ParsePropertyList(prefix), PropertyListError);
    }
}

TEST(PropertyListTest, ACutInsideTheDataSaysWhatIsMissing) {
    Bytes bytes(kTolvanePropertyList.begin(), kTolvanePropertyList.begin() + 70);
    EXPECT_EQ(RejectionOf(bytes), "truncated: property 3 of 4 needs 12 bytes of data, 4 remain");
}

TEST(PropertyListTest, AWrongKindIsRejected) {
    std::string message = RejectionOf(TolvaneWith(test::kKindDataOffset, {'X', 'X', 'X', 'X'}));
    EXPECT_EQ(message, "kind is 'XXXX', expected 'HVEA'");
}

TEST(PropertyListTest, ACountOfFiveRunsOffTheEnd) {
    std::string message = RejectionOf(TolvaneWithCount(5));
    EXPECT_TRUE(Mentions(message, "truncated: property 5 of 5")) << message;
}

TEST(PropertyListTest, ACountOfThreeLeavesTrailingBytes) {
    std::string message = RejectionOf(TolvaneWithCount(3));
    EXPECT_EQ(message, "count is 3 but 24 bytes follow property 3");
}

TEST(PropertyListTest, AListWithoutAnEntryPointIsRejected) {
    Bytes bytes = TolvaneWithCount(3);
    auto entryPoint = bytes.begin() + test::kEntryPointOffset;
    bytes.erase(entryPoint, entryPoint + test::kEntryPointSize);
    EXPECT_EQ(RejectionOf(bytes), "no entry point (wx86)");
}

TEST(PropertyListTest, AnotherInterfaceVersionIsRejected) {
    std::string message = RejectionOf(TolvaneWith(test::kIvrsDataOffset, {3, 0, 0, 0}));
    EXPECT_EQ(message, "unsupported interface version 3");
}

TEST(PropertyListTest, AnotherVendorIsRejected) {
    std::string message = RejectionOf(TolvaneWith(test::kIvrsVendorOffset, {'D', 'C', 'B', 'A'}));
    EXPECT_TRUE(Mentions(message, "vendor 'ABCD' is not 'QRVL'"));
}

TEST(PropertyListTest, AHeaderWithAnotherVersionIsRejected) {
    std::string message = RejectionOf(TolvaneWith(2, {1, 0, 0, 0}));
    EXPECT_EQ(message, "header says version 1, expected 0");
}

TEST(PropertyListTest, AHeaderNotStartingWithOneIsRejected) {
    EXPECT_TRUE(Mentions(RejectionOf(TolvaneWith(0, {2, 0})), "header starts with 2"));
}

TEST(PropertyListTest, ADataLengthOffTheFourByteGridIsRejected) {
    // The plug-in name's length field: 7 is the unpadded length, which the list never holds.
    std::string message = RejectionOf(TolvaneWith(test::kPluginNameDataOffset - 4, {7, 0, 0, 0}));
    EXPECT_TRUE(Mentions(message, "not a multiple of 4"));
}

TEST(PropertyListTest, AnEmptyPluginNameIsRejected) {
    std::string message = RejectionOf(TolvaneWith(test::kPluginNameDataOffset, {0}));
    EXPECT_EQ(message, "plug-in name (pinm) is empty");
}

TEST(PropertyListTest, APluginNameWithoutTerminatorIsRejected) {
    std::string message = RejectionOf(TolvaneWith(test::kPluginNameDataOffset + 7, {'s'}));
    EXPECT_EQ(message, "plug-in name (pinm) is not zero-terminated");
}

TEST(PropertyListTest, ARepeatedKeyIsRejected) {
    Bytes secondName = {'L', 'V', 'R', 'Q', 'm', 'n', 'i', 'p', 0,   0,
                        0,   0,   4,   0,   0,   0,   'Z', 'e', 'd', 0};
    std::string message = RejectionOf(TolvaneWithFifthProperty(secondName));
    EXPECT_TRUE(Mentions(message, "duplicate key 'pinm'"));
}

TEST(PropertyListTest, AnUnknownKeyIsSkipped) {
    Bytes extra = {'L', 'V', 'R', 'Q', 'x', 'x', 'x', 'x', 0, 0, 0, 0, 4, 0, 0, 0, 9, 9, 9, 9};
    PropertyList list = ParsePropertyList(TolvaneWithFifthProperty(extra));
    EXPECT_EQ(list.pluginName, "Tolvane");
}

TEST(PropertyListTest, AMissingFileIsReportedWithItsPath) {
    zm::test::ScratchFolder folder;
    std::filesystem::path file = folder.Path() / "absent.pipl";
    try {
        ReadPropertyList(file);
        ADD_FAILURE() << "a missing file parsed";
    } catch (const PropertyListError& error) {
        EXPECT_TRUE(Mentions(error.what(), file.string()));
    }
}

TEST(PropertyListTest, ATruncatedFileIsReportedWithItsPath) {
    zm::test::ScratchFolder folder;
    std::filesystem::path file = folder.Path() / "plugin.pipl";
    WriteBytes(file, Bytes(kTolvanePropertyList.begin(), kTolvanePropertyList.begin() + 40));
    try {
        ReadPropertyList(file);
        ADD_FAILURE() << "a truncated file parsed";
    } catch (const PropertyListError& error) {
        EXPECT_EQ(std::string(error.what()).rfind(file.string() + ": truncated", 0), 0u)
            << error.what();
    }
}

}  // namespace
}  // namespace zm::host
