#include "host/suites/SuiteFixture.hpp"

#include <zelmora/ZMNotifierSuite.h>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

constexpr const char* kType = ZM_NOTIFIER_DOCUMENT_CHANGED;

class NotifierSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override { Acquire(ZM_NOTIFIER_SUITE_NAME, ZM_NOTIFIER_SUITE_VERSION, notifiers); }

    ZMNotifierHandle Subscribe(const char* type = kType) {
        ZMNotifierHandle notifier = nullptr;
        EXPECT_EQ(notifiers->AddNotifier(ref, "Probe", type, &notifier), ZM_ERR_NONE);
        return notifier;
    }

    int32_t Active(ZMNotifierHandle notifier) {
        int32_t active = -1;
        EXPECT_EQ(notifiers->IsNotifierActive(notifier, &active), ZM_ERR_NONE);
        return active;
    }

    const ZMNotifierSuite* notifiers = nullptr;
};

TEST_F(NotifierSuiteTest, ANewSubscriptionIsRecordedForThePluginOwnerAndType) {
    ZMNotifierHandle notifier = Subscribe();
    ASSERT_NE(notifier, nullptr);
    const Notifier* added = runtime.notifiers.Find(notifier);
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->plugin, ref);
    EXPECT_EQ(added->owner, "Probe");
    EXPECT_EQ(added->type, kType);
}

TEST_F(NotifierSuiteTest, ANewNotifierIsActive) {
    ZMNotifierHandle notifier = Subscribe();
    EXPECT_EQ(Active(notifier), 1);
    EXPECT_EQ(runtime.notifiers.Subscribers(kType).size(), 1u);
}

TEST_F(NotifierSuiteTest, ADeactivatedNotifierIsNoLongerASubscriberOfItsType) {
    ZMNotifierHandle notifier = Subscribe();
    ASSERT_EQ(notifiers->SetNotifierActive(notifier, 0), ZM_ERR_NONE);
    EXPECT_EQ(Active(notifier), 0);
    // Notify sends only to Subscribers(type), so nothing reaches this notifier now.
    EXPECT_TRUE(runtime.notifiers.Subscribers(kType).empty());
    EXPECT_EQ(runtime.plugins.Notify(kType, nullptr), ZM_ERR_NONE);
}

TEST_F(NotifierSuiteTest, AReactivatedNotifierSubscribesAgain) {
    ZMNotifierHandle notifier = Subscribe();
    ASSERT_EQ(notifiers->SetNotifierActive(notifier, 0), ZM_ERR_NONE);
    ASSERT_EQ(notifiers->SetNotifierActive(notifier, 1), ZM_ERR_NONE);
    EXPECT_EQ(Active(notifier), 1);
    EXPECT_EQ(runtime.notifiers.Subscribers(kType).size(), 1u);
}

TEST_F(NotifierSuiteTest, DeactivatingOneNotifierLeavesTheOthersOfItsTypeSubscribed) {
    ZMNotifierHandle first = Subscribe();
    ZMNotifierHandle second = Subscribe();
    ASSERT_EQ(notifiers->SetNotifierActive(first, 0), ZM_ERR_NONE);
    auto subscribers = runtime.notifiers.Subscribers(kType);
    ASSERT_EQ(subscribers.size(), 1u);
    EXPECT_EQ(runtime.notifiers.HandleOf(*subscribers[0]), second);
}

TEST_F(NotifierSuiteTest, ANotifierSubscribesOnlyToItsOwnType) {
    Subscribe(ZM_NOTIFIER_DOCUMENT_OPENED);
    EXPECT_TRUE(runtime.notifiers.Subscribers(ZM_NOTIFIER_DOCUMENT_CLOSED).empty());
    EXPECT_EQ(runtime.notifiers.Subscribers(ZM_NOTIFIER_DOCUMENT_OPENED).size(), 1u);
}

TEST_F(NotifierSuiteTest, GetNotifierTypeGivesTheTypeSubscribedTo) {
    ZMNotifierHandle notifier = Subscribe(ZM_NOTIFIER_ART_SELECTION_CHANGED);
    const char* type = nullptr;
    ASSERT_EQ(notifiers->GetNotifierType(notifier, &type), ZM_ERR_NONE);
    ASSERT_NE(type, nullptr);
    EXPECT_STREQ(type, ZM_NOTIFIER_ART_SELECTION_CHANGED);
}

TEST_F(NotifierSuiteTest, TheTypePointerStaysTheSameWhileTheNotifierLives) {
    ZMNotifierHandle notifier = Subscribe();
    const char* first = nullptr;
    const char* second = nullptr;
    ASSERT_EQ(notifiers->GetNotifierType(notifier, &first), ZM_ERR_NONE);
    Subscribe(ZM_NOTIFIER_DOCUMENT_CLOSED);  // more notifiers must not move the first one's type
    ASSERT_EQ(notifiers->GetNotifierType(notifier, &second), ZM_ERR_NONE);
    EXPECT_EQ(first, second);
}

TEST_F(NotifierSuiteTest, AnEmptyTypeIsABadArgumentAndSubscribesNothing) {
    ZMNotifierHandle notifier = nullptr;
    EXPECT_EQ(notifiers->AddNotifier(ref, "Probe", "", &notifier), ZM_ERR_BAD_ARGUMENT);
    EXPECT_TRUE(runtime.notifiers.All().empty());
}

TEST_F(NotifierSuiteTest, APluginRefTheHostNeverMadeIsABadArgument) {
    ZMNotifierHandle notifier = nullptr;
    EXPECT_EQ(
        notifiers->AddNotifier(zm::test::ForeignHandle<ZMPluginRef>(), "Probe", kType, &notifier),
        ZM_ERR_BAD_ARGUMENT);
    EXPECT_TRUE(runtime.notifiers.All().empty());
}

TEST_F(NotifierSuiteTest, AddingWithoutOwnerTypeOrOutPointerIsABadArgument) {
    ZMNotifierHandle notifier = nullptr;
    EXPECT_EQ(notifiers->AddNotifier(ref, nullptr, kType, &notifier), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(notifiers->AddNotifier(ref, "Probe", nullptr, &notifier), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(notifiers->AddNotifier(ref, "Probe", kType, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_TRUE(runtime.notifiers.All().empty());
}

TEST_F(NotifierSuiteTest, EveryNotifierEntryRejectsAHandleTheHostNeverMade) {
    Subscribe();  // so that the host has a notifier, just not this one
    auto foreign = zm::test::ForeignHandle<ZMNotifierHandle>();
    int32_t active = -1;
    const char* type = nullptr;
    EXPECT_EQ(notifiers->SetNotifierActive(foreign, 0), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(notifiers->IsNotifierActive(foreign, &active), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(notifiers->GetNotifierType(foreign, &type), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(notifiers->SetNotifierActive(nullptr, 0), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(active, -1);
    EXPECT_EQ(type, nullptr);
    EXPECT_EQ(runtime.notifiers.Subscribers(kType).size(), 1u);
}

TEST_F(NotifierSuiteTest, NullOutPointersAreABadArgument) {
    ZMNotifierHandle notifier = Subscribe();
    EXPECT_EQ(notifiers->IsNotifierActive(notifier, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(notifiers->GetNotifierType(notifier, nullptr), ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
