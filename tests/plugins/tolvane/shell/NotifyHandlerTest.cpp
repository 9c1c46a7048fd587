#include "plugins/tolvane/PanelSession.hpp"

#include <ostui/ListItem.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::test {
namespace {

constexpr const char* kSelectionChanged = "ZM Art Selection Changed Notifier";
constexpr const char* kPropertiesChanged = "ZM Art Properties Changed Notifier";
constexpr const char* kDocumentChanged = "ZM Document Changed Notifier";
constexpr const char* kPreferenceChanged = "ZM Preference Changed Notifier";
constexpr const char* kAfterArtSetup = "ZM Command Notifier: After Art Setup";
constexpr const char* kCropAreaModified = "ZM Document Crop Area Modified Notifier";

constexpr int kDocumentMode = 2;
constexpr int kObjectsMode = 3;

// Every notifier the plug-in subscribes to but the start and close notices.
const std::vector<const char*> kRefreshingKinds = {
    kSelectionChanged,
    kPropertiesChanged,
    kDocumentChanged,
    "ZM Document Closed Notifier",
    "ZM Document Opened Notifier",
    "ZM Document Profiles Changed Notifier",
    kPreferenceChanged,
    kAfterArtSetup,
    kCropAreaModified,
};

class NotifyHandlerTest : public PanelSession {
protected:
    void SetUp() override {
        PanelSession::SetUp();
        ShowWithDocument();
    }

    // Gives the document the colour model (RGB or CMYK) the panel does not show, sends the
    // notification, and tells whether the panel now shows it: only a refresh reads it again.
    bool ShowsChangeAfter(const char* type, void* data) {
        host::document::Document& document = *Runtime().documents.Current();
        bool toCmyk = Shown().find("Color Mode: CMYK color\r\n") == std::string::npos;
        document.colorModel =
            toCmyk ? host::document::kColorModelCmyk : host::document::kColorModelRgb;
        EXPECT_EQ(Notify(type, data), ZM_ERR_NONE);
        std::string line = toCmyk ? "Color Mode: CMYK color\r\n" : "Color Mode: RGB color\r\n";
        return Shown().find(line) != std::string::npos;
    }

    // For categories whose text does not follow the document's settings: a refresh always
    // replaces the list's one row, and holding the old row keeps its address from being
    // reused.
    bool ReplacesRowAfter(const char* type, void* data) {
        EXPECT_EQ(List().ItemCount(), 1u);
        ostui::ListItemPtr before = List().ItemCount() == 1 ? List().Items()[0] : nullptr;
        EXPECT_EQ(Notify(type, data), ZM_ERR_NONE);
        return List().ItemCount() == 1 && List().Items()[0] != before;
    }

    void ChooseMode(int mode) { ASSERT_TRUE(Panel()->ChooseFlyoutItem(mode)); }

    // Distinct notification data, as a host gives each change its own record.
    int data[12] = {};
};

TEST_F(NotifyHandlerTest, WithThePanelHiddenNoOtherNotificationDoesAnything) {
    ASSERT_EQ(RunMenuItem(), ZM_ERR_NONE);  // hides it
    ASSERT_FALSE(Panel()->IsVisible());
    int next = 0;
    for (const char* type : kRefreshingKinds) {
        EXPECT_FALSE(ShowsChangeAfter(type, &data[next++])) << type;
    }
    EXPECT_EQ(Globals().lastNotifyData, nullptr);
    EXPECT_FALSE(Panel()->IsVisible());
    EXPECT_FALSE(MenuItemChecked());
}

TEST_F(NotifyHandlerTest, TheObserverSeesARefreshOfAShownPanel) {
    // The same observation as above, on a shown panel: every kind refreshes in the Document
    // category except selection and properties changes.
    int next = 0;
    for (const char* type : kRefreshingKinds) {
        bool filtered =
            std::string(type) == kSelectionChanged || std::string(type) == kPropertiesChanged;
        EXPECT_EQ(ShowsChangeAfter(type, &data[next++]), !filtered) << type;
    }
}

TEST_F(NotifyHandlerTest, TheSameDataTwiceRefreshesOnce) {
    EXPECT_TRUE(ShowsChangeAfter(kDocumentChanged, &data[0]));
    EXPECT_FALSE(ShowsChangeAfter(kDocumentChanged, &data[0]));
    EXPECT_EQ(Globals().lastNotifyData, &data[0]);
    // Other data is another change.
    EXPECT_TRUE(ShowsChangeAfter(kDocumentChanged, &data[1]));
}

TEST_F(NotifyHandlerTest, TheSameDataUnderAnotherNameStillCountsAsSeen) {
    EXPECT_TRUE(ShowsChangeAfter(kDocumentChanged, &data[0]));
    EXPECT_FALSE(ShowsChangeAfter("ZM Document Profiles Changed Notifier", &data[0]));
}

TEST_F(NotifyHandlerTest, AfterArtSetupAlwaysRefreshes) {
    EXPECT_TRUE(ShowsChangeAfter(kAfterArtSetup, &data[0]));
    EXPECT_TRUE(ShowsChangeAfter(kAfterArtSetup, &data[0]));
    EXPECT_TRUE(ShowsChangeAfter(kAfterArtSetup, nullptr));
}

TEST_F(NotifyHandlerTest, AfterArtSetupLeavesTheLastDataAlone) {
    EXPECT_TRUE(ShowsChangeAfter(kDocumentChanged, &data[0]));
    EXPECT_TRUE(ShowsChangeAfter(kAfterArtSetup, &data[1]));
    EXPECT_EQ(Globals().lastNotifyData, &data[0]);
    EXPECT_FALSE(ShowsChangeAfter(kDocumentChanged, &data[0]));
}

TEST_F(NotifyHandlerTest, InTheDocumentCategorySelectionAndPropertiesChangesNeverRefresh) {
    ASSERT_EQ(Globals().mode, kDocumentMode);
    EXPECT_FALSE(ShowsChangeAfter(kSelectionChanged, &data[0]));
    EXPECT_FALSE(ShowsChangeAfter(kPropertiesChanged, &data[1]));
    EXPECT_FALSE(ShowsChangeAfter(kSelectionChanged, &data[2]));
    EXPECT_EQ(Globals().lastNotifyData, nullptr);
}

TEST_F(NotifyHandlerTest, AFilteredNotificationLeavesItsDataFreeToRefreshLater) {
    EXPECT_FALSE(ShowsChangeAfter(kSelectionChanged, &data[0]));
    EXPECT_TRUE(ShowsChangeAfter(kDocumentChanged, &data[0]));
    EXPECT_FALSE(ShowsChangeAfter(kPropertiesChanged, &data[1]));
    EXPECT_TRUE(ShowsChangeAfter(kDocumentChanged, &data[1]));
}

TEST_F(NotifyHandlerTest, OutsideTheDocumentCategorySelectionChangesRefresh) {
    ChooseMode(kObjectsMode);
    EXPECT_TRUE(ReplacesRowAfter(kSelectionChanged, &data[0]));
    EXPECT_TRUE(ReplacesRowAfter(kPropertiesChanged, &data[1]));
    // And the same data again does not.
    EXPECT_FALSE(ReplacesRowAfter(kPropertiesChanged, &data[1]));
}

TEST_F(NotifyHandlerTest, PreferenceChangesRefreshInTheDocumentCategory) {
    EXPECT_TRUE(ShowsChangeAfter(kPreferenceChanged, &data[0]));
}

TEST_F(NotifyHandlerTest, PreferenceChangesRefreshInTheObjectsCategory) {
    ChooseMode(kObjectsMode);
    EXPECT_TRUE(ReplacesRowAfter(kPreferenceChanged, &data[0]));
    EXPECT_EQ(Globals().lastNotifyData, &data[0]);
}

TEST_F(NotifyHandlerTest, PreferenceChangesNeverRefreshInTheOtherCategories) {
    for (int mode = 4; mode <= 12; ++mode) {
        ChooseMode(mode);
        EXPECT_FALSE(ReplacesRowAfter(kPreferenceChanged, &data[mode - 4])) << "mode " << mode;
        EXPECT_EQ(Globals().lastNotifyData, nullptr) << "mode " << mode;
    }
    // The observer does see a refresh in these categories.
    EXPECT_TRUE(ReplacesRowAfter(kDocumentChanged, &data[0]));
}

TEST_F(NotifyHandlerTest, CropAreaChangesRefreshOnlyInTheDocumentCategory) {
    // Not compared with the last data: the same data twice refreshes twice.
    EXPECT_TRUE(ShowsChangeAfter(kCropAreaModified, &data[0]));
    EXPECT_TRUE(ShowsChangeAfter(kCropAreaModified, &data[0]));
    EXPECT_EQ(Globals().lastNotifyData, nullptr);
    ChooseMode(kObjectsMode);
    EXPECT_FALSE(ReplacesRowAfter(kCropAreaModified, &data[1]));
}

}  // namespace
}  // namespace zm::test
