#include "host/suites/SuiteFixture.hpp"

#include <zelmora/ZMPluginFramework.h>

#include <gtest/gtest.h>

#include <cstddef>

namespace zm::host {
namespace {

// The probe's description record stands in for the one its code would hand to Dispatch; the
// fixture records it as Dispatch would, so the plug-in suite can find the probe by it.
class FrameworkSuitesTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        plugin.framework.description = &description;
        Acquire(ZM_LMB_PLUGIN_SUITE_NAME, ZM_LMB_PLUGIN_SUITE_VERSION, plugins);
        Acquire(ZM_LMB_UTILS_SUITE_NAME, ZM_LMB_UTILS_SUITE_VERSION, utils);
    }

    int32_t Started(const ZMPluginDescription* record) {
        int32_t started = -1;
        EXPECT_EQ(plugins->IsStarted(record, &started), ZM_ERR_NONE);
        return started;
    }

    ZMPluginDescription description{};
    ZMPluginDescription unseen{};  // never handed to the framework
    const ZMLMBPluginSuite* plugins = nullptr;
    const ZMLMBUtilsSuite* utils = nullptr;
};

TEST_F(FrameworkSuitesTest, EveryPluginEntryAnswersNotFoundForARecordTheFrameworkNeverSaw) {
    int32_t number = -1;
    const ZMFrameworkPluginData* data = nullptr;
    const char* name = nullptr;
    ZMPluginRef found = nullptr;
    void* block = nullptr;
    EXPECT_EQ(plugins->GetFrameworkVersion(&unseen, &number), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(plugins->GetPluginData(&unseen, &data), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(plugins->GetPluginName(&unseen, &name), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(plugins->IsStarted(&unseen, &number), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(plugins->StartPlugin(&unseen), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(plugins->StopPlugin(&unseen), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(plugins->GetPluginRef(&unseen, &found), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(plugins->AllocateBlock(&unseen, 16, &block), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(plugins->FreeBlock(&unseen, nullptr), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(number, -1);
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(name, nullptr);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(block, nullptr);
    EXPECT_EQ(runtime.blocks.TotalAllocations(), 0u);
}

TEST_F(FrameworkSuitesTest, ANullRecordIsNotFound) {
    ZMPluginRef found = nullptr;
    EXPECT_EQ(plugins->GetPluginRef(nullptr, &found), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(plugins->StartPlugin(nullptr), ZM_ERR_NOT_FOUND);
}

TEST_F(FrameworkSuitesTest, StartingAnUnseenRecordStartsNoPlugin) {
    ASSERT_EQ(plugins->StartPlugin(&unseen), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(Started(&description), 0);
}

TEST_F(FrameworkSuitesTest, GetPluginRefGivesThePluginOfTheRecord) {
    ZMPluginRef found = nullptr;
    ASSERT_EQ(plugins->GetPluginRef(&description, &found), ZM_ERR_NONE);
    EXPECT_EQ(found, plugin.Ref());
}

TEST_F(FrameworkSuitesTest, EachRecordFindsItsOwnPlugin) {
    LoadedPlugin& other = Adopt("Other");
    ZMPluginDescription otherDescription{};
    other.framework.description = &otherDescription;
    ZMPluginRef found = nullptr;
    ASSERT_EQ(plugins->GetPluginRef(&otherDescription, &found), ZM_ERR_NONE);
    EXPECT_EQ(found, other.Ref());
    ASSERT_EQ(plugins->GetPluginRef(&description, &found), ZM_ERR_NONE);
    EXPECT_EQ(found, plugin.Ref());
}

TEST_F(FrameworkSuitesTest, GetPluginNameGivesTheBundlesPluginName) {
    const char* name = nullptr;
    ASSERT_EQ(plugins->GetPluginName(&description, &name), ZM_ERR_NONE);
    ASSERT_NE(name, nullptr);
    EXPECT_STREQ(name, "Probe");
}

TEST_F(FrameworkSuitesTest, APluginIsNotStartedAtFirst) { EXPECT_EQ(Started(&description), 0); }

TEST_F(FrameworkSuitesTest, StartPluginMarksThePluginStarted) {
    ASSERT_EQ(plugins->StartPlugin(&description), ZM_ERR_NONE);
    EXPECT_NE(Started(&description), 0);
}

TEST_F(FrameworkSuitesTest, StartingTwiceIsHarmless) {
    ASSERT_EQ(plugins->StartPlugin(&description), ZM_ERR_NONE);
    EXPECT_EQ(plugins->StartPlugin(&description), ZM_ERR_NONE);
    EXPECT_NE(Started(&description), 0);
}

TEST_F(FrameworkSuitesTest, StopPluginMarksThePluginStopped) {
    ASSERT_EQ(plugins->StartPlugin(&description), ZM_ERR_NONE);
    ASSERT_EQ(plugins->StopPlugin(&description), ZM_ERR_NONE);
    EXPECT_EQ(Started(&description), 0);
}

TEST_F(FrameworkSuitesTest, StoppingAStoppedPluginIsHarmless) {
    EXPECT_EQ(plugins->StopPlugin(&description), ZM_ERR_NONE);
    EXPECT_EQ(Started(&description), 0);
}

TEST_F(FrameworkSuitesTest, ThePluginDataFollowsStartAndStop) {
    const ZMFrameworkPluginData* data = nullptr;
    ASSERT_EQ(plugins->GetPluginData(&description, &data), ZM_ERR_NONE);
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(data->started, 0);
    ASSERT_EQ(plugins->StartPlugin(&description), ZM_ERR_NONE);
    EXPECT_NE(data->started, 0);  // the record is the framework's own, not a copy
    ASSERT_EQ(plugins->StopPlugin(&description), ZM_ERR_NONE);
    EXPECT_EQ(data->started, 0);
}

TEST_F(FrameworkSuitesTest, NullOutPointersAreABadArgument) {
    EXPECT_EQ(plugins->GetFrameworkVersion(&description, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(plugins->GetPluginData(&description, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(plugins->GetPluginName(&description, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(plugins->IsStarted(&description, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(plugins->GetPluginRef(&description, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(plugins->AllocateBlock(&description, 16, nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(FrameworkSuitesTest, TheReservedPositionsAreEmpty) {
    for (auto* entry : plugins->reserved4) {
        EXPECT_EQ(entry, nullptr);
    }
    for (auto* entry : plugins->reserved10) {
        EXPECT_EQ(entry, nullptr);
    }
    for (auto* entry : plugins->reserved13) {
        EXPECT_EQ(entry, nullptr);
    }
}

TEST_F(FrameworkSuitesTest, AllocateBlockGivesAZeroFilledBlock) {
    void* block = nullptr;
    ASSERT_EQ(plugins->AllocateBlock(&description, 128, &block), ZM_ERR_NONE);
    ASSERT_NE(block, nullptr);
    const auto* bytes = static_cast<const unsigned char*>(block);
    for (std::size_t i = 0; i < 128; ++i) {
        ASSERT_EQ(bytes[i], 0u) << "byte " << i;
    }
    EXPECT_EQ(plugins->FreeBlock(&description, block), ZM_ERR_NONE);
}

TEST_F(FrameworkSuitesTest, FreeBlockGivesTheBlockBack) {
    void* block = nullptr;
    ASSERT_EQ(plugins->AllocateBlock(&description, 16, &block), ZM_ERR_NONE);
    ASSERT_EQ(runtime.blocks.LiveBlocks(), 1u);
    EXPECT_EQ(plugins->FreeBlock(&description, block), ZM_ERR_NONE);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
}

TEST_F(FrameworkSuitesTest, FreeingNullIsIgnored) {
    EXPECT_EQ(plugins->FreeBlock(&description, nullptr), ZM_ERR_NONE);
}

TEST_F(FrameworkSuitesTest, FreeingAPointerTheHostNeverAllocatedIsABadArgument) {
    int unrelated = 0;
    EXPECT_EQ(plugins->FreeBlock(&description, &unrelated), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(FrameworkSuitesTest, AnAllocationWithoutMemoryIsNoMemory) {
    runtime.faults.FailAllocation(1);
    void* block = nullptr;
    EXPECT_EQ(plugins->AllocateBlock(&description, 16, &block), ZM_ERR_NO_MEMORY);
    EXPECT_EQ(block, nullptr);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
}

TEST_F(FrameworkSuitesTest, FourCharToTextWritesTheCharactersMostSignificantFirst) {
    char text[5] = {'x', 'x', 'x', 'x', 'x'};
    ASSERT_EQ(utils->FourCharToText(0x214D454D, text), ZM_ERR_NONE);
    EXPECT_STREQ(text, "!MEM");
}

TEST_F(FrameworkSuitesTest, FourCharToTextKeepsHighBitCharacters) {
    char text[5] = {};
    ASSERT_EQ(utils->FourCharToText(static_cast<int32_t>(0xA9414243u), text), ZM_ERR_NONE);
    EXPECT_EQ(static_cast<unsigned char>(text[0]), 0xA9u);
    EXPECT_STREQ(text + 1, "ABC");
}

TEST_F(FrameworkSuitesTest, TextToFourCharReadsTheCharactersMostSignificantFirst) {
    int32_t code = 0;
    ASSERT_EQ(utils->TextToFourChar("CANT", &code), ZM_ERR_NONE);
    EXPECT_EQ(code, 0x43414E54);
    EXPECT_EQ(code, ZM_ERR_CANT);
}

TEST_F(FrameworkSuitesTest, TextToFourCharUndoesFourCharToText) {
    char text[5] = {};
    int32_t code = 0;
    ASSERT_EQ(utils->FourCharToText(ZM_ERR_SUITE_NOT_FOUND, text), ZM_ERR_NONE);
    ASSERT_EQ(utils->TextToFourChar(text, &code), ZM_ERR_NONE);
    EXPECT_EQ(code, ZM_ERR_SUITE_NOT_FOUND);
}

TEST_F(FrameworkSuitesTest, ATextOfOtherThanFourCharactersIsABadArgument) {
    int32_t code = 7;
    EXPECT_EQ(utils->TextToFourChar("abc", &code), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(utils->TextToFourChar("abcde", &code), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(utils->TextToFourChar("", &code), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(code, 7);
}

TEST_F(FrameworkSuitesTest, NullUtilsArgumentsAreABadArgument) {
    int32_t code = 0;
    EXPECT_EQ(utils->FourCharToText(ZM_ERR_CANT, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(utils->TextToFourChar(nullptr, &code), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(utils->TextToFourChar("CANT", nullptr), ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
