#include "support/TestHost.hpp"

#include <suites/BasicSuite.hpp>

#include <zelmora/ZMBasicSuite.h>
#include <zelmora/ZMPluginMain.h>

#include <gtest/gtest.h>

namespace {

using zm::test::TestHost;

// A basic suite of the test's own that counts what the plug-in asks of it and forwards to
// the host's, so the test sees which basic suite the plug-in is using.
int sProbeCalls = 0;

ZMErr ZM_API ProbeAcquire(const char* name, int32_t version, const void** suite) {
    ++sProbeCalls;
    return zm::host::HostBasicSuite().AcquireSuite(name, version, suite);
}
ZMErr ZM_API ProbeRelease(const char* name, int32_t version) {
    ++sProbeCalls;
    return zm::host::HostBasicSuite().ReleaseSuite(name, version);
}
int32_t ZM_API ProbeIsEqual(const char* first, const char* second) {
    return zm::host::HostBasicSuite().IsEqual(first, second);
}
ZMErr ZM_API ProbeAllocate(size_t size, void** block) {
    ++sProbeCalls;
    return zm::host::HostBasicSuite().AllocateBlock(size, block);
}
ZMErr ZM_API ProbeFree(void* block) { return zm::host::HostBasicSuite().FreeBlock(block); }

ZMBasicSuite sProbe = {ProbeAcquire, ProbeRelease, ProbeIsEqual, ProbeAllocate, ProbeFree};

ZMMessageRecord Message(TestHost& host, uint32_t signature) {
    ZMMessageRecord record{};
    record.signature = signature;
    record.self = host.Tolvane().Ref();
    record.globals = host.Tolvane().globals;
    record.basicSuite = &sProbe;
    return record;
}

class PluginMainTest : public ::testing::Test {
protected:
    void SetUp() override {
        sProbeCalls = 0;
        ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    }
    TestHost host;
};

TEST_F(PluginMainTest, AMessageWithAWrongSignatureStillReachesTheFramework) {
    ZMMessageRecord record = Message(host, 0x12345678);
    ZMErr result = host.Tolvane().SendRaw(ZM_CALLER_ACCESS, ZM_SELECTOR_RELOAD, &record);
    // The framework refuses a record that is not the host's.
    EXPECT_EQ(result, ZM_ERR_BAD_MESSAGE);
    ASSERT_FALSE(host.Runtime().dispatches.empty());
    const auto& last = host.Runtime().dispatches.back();
    EXPECT_EQ(last.caller, "HV Access");
    EXPECT_EQ(last.selector, "Reload");
    EXPECT_FALSE(last.signatureValid);
}

TEST_F(PluginMainTest, AMessageWithAWrongSignatureLeavesTheBasicSuiteSlotAsItWas) {
    ZMMessageRecord wrong = Message(host, 0x12345678);
    host.Tolvane().SendRaw(ZM_CALLER_ACCESS, ZM_SELECTOR_RELOAD, &wrong);
    EXPECT_EQ(sProbeCalls, 0);
    // A later message with the host's own basic suite still goes through the old slot.
    host.Runtime().plugins.Notify("ZM Document Changed Notifier", nullptr);
    EXPECT_EQ(sProbeCalls, 0);
}

TEST_F(PluginMainTest, ASignedReloadReplacesTheBasicSuiteSlot) {
    // The counterpart of the test above: the probe is seen once the slot holds it.
    ZMMessageRecord signed_ = Message(host, static_cast<uint32_t>(ZM_MESSAGE_SIGNATURE));
    ASSERT_EQ(host.Tolvane().SendRaw(ZM_CALLER_ACCESS, ZM_SELECTOR_RELOAD, &signed_),
              ZM_ERR_NONE);
    EXPECT_GT(sProbeCalls, 0);
    host.Runtime().plugins.Notify("ZM Document Changed Notifier", nullptr);
    int afterReload = sProbeCalls;
    host.Runtime().plugins.Notify("ZM Document Changed Notifier", nullptr);
    EXPECT_GT(sProbeCalls, afterReload);
}

TEST_F(PluginMainTest, AnUnknownSelectorIsRefusedByTheFramework) {
    ZMMessageRecord record = Message(host, static_cast<uint32_t>(ZM_MESSAGE_SIGNATURE));
    record.basicSuite = const_cast<ZMBasicSuite*>(&zm::host::HostBasicSuite());
    EXPECT_EQ(host.Tolvane().SendRaw(ZM_CALLER_PLUGIN, "Wander", &record), ZM_ERR_BAD_SELECTOR);
}

TEST_F(PluginMainTest, AFrameworkTheHostCannotLendIsReturnedUnchanged) {
    const ZMErr refused = ZM_FOUR_CHAR('N', 'O', 'F', 'W');
    host.Runtime().suites.FailAcquisition("LMB Basic Suite", 1, refused);
    EXPECT_EQ(host.Runtime().plugins.Notify("ZM Document Changed Notifier", nullptr), refused);
    host.Runtime().suites.FailAcquisition("LMB Basic Suite", 1, ZM_ERR_NONE);
}

TEST_F(PluginMainTest, TheFrameworkSuiteIsGivenBackAfterEveryMessage) {
    host.Runtime().plugins.Notify("ZM Document Changed Notifier", nullptr);
    const auto* framework = host.Runtime().suites.Find("LMB Basic Suite", 1);
    ASSERT_NE(framework, nullptr);
    EXPECT_GT(framework->acquired, 0);
    EXPECT_EQ(framework->acquired, framework->released);
}

TEST_F(PluginMainTest, TheMenuItemsCommandReachesThePlugIn) {
    ASSERT_EQ(host.Runtime().menus.Items().size(), 1u);
    ZMMenuItemHandle item = host.Runtime().menus.HandleOf(*host.Runtime().menus.Items()[0]);
    EXPECT_EQ(host.Runtime().plugins.RunMenuItem(item), ZM_ERR_NONE);
    const auto& last = host.Runtime().dispatches.back();
    EXPECT_EQ(last.caller, "ZM Menu");
    EXPECT_EQ(last.selector, "Go Menu Item");
    EXPECT_TRUE(last.signatureValid);
}

TEST_F(PluginMainTest, AMenuItemNoPlugInOwnsReachesNobody) {
    std::size_t before = host.Runtime().dispatches.size();
    EXPECT_EQ(host.Runtime().plugins.RunMenuItem(nullptr), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(host.Runtime().dispatches.size(), before);
}

TEST_F(PluginMainTest, ANotificationReachesThePlugInOnlyForTypesItSubscribed) {
    std::size_t before = host.Runtime().dispatches.size();
    host.Runtime().plugins.Notify("ZM Document Opened Notifier", nullptr);
    ASSERT_EQ(host.Runtime().dispatches.size(), before + 1);
    EXPECT_EQ(host.Runtime().dispatches.back().selector, "Notify");
    host.Runtime().plugins.Notify("ZM Swatch Library Changed Notifier", nullptr);
    EXPECT_EQ(host.Runtime().dispatches.size(), before + 1);
}

}  // namespace
