#pragma once

#include "support/TestHost.hpp"

#include <importers/svg/SvgImporter.hpp>
#include <shell/Globals.hpp>

#include <ostui/FlyoutMenu.hpp>
#include <ostui/ListBox.hpp>
#include <ostzm/PanelRegistry.hpp>
#include <ostzm/ZMUIBasePanel.hpp>

#include <gtest/gtest.h>

#include <string>

namespace zm::test {

// The real bundle in the real host, started, with the application's start notice sent, so the
// Document Info panel exists (hidden). The panel is reached only through the toolkit, as the
// host reaches it: the test binary holds its own copy of the plug-in's code, whose globals
// are not the bundle's.
class PanelSession : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(host.Start(), ZM_ERR_NONE);
        ASSERT_EQ(Notify("ZM Application Started Notifier"), ZM_ERR_NONE);
        ASSERT_NE(Panel(), nullptr);
    }

    void TearDown() override {
        EXPECT_EQ(host.Stop(), ZM_ERR_NONE);
        EXPECT_EQ(host.Runtime().contexts.Depth(), 0);
    }

    host::Runtime& Runtime() { return host.Runtime(); }
    tolvane::Globals& Globals() { return *static_cast<tolvane::Globals*>(host.Tolvane().globals); }

    ostzm::ZMUIBasePanel* Panel() { return ostzm::PanelRegistry::FindPanel(host.Tolvane().Ref()); }
    ostui::FlyoutMenu& Flyout() { return *Panel()->GetFlyoutMenu(); }
    ostui::ListBox& List() {
        return *Panel()->GetView()->FindChildAs<ostui::ListBox>("TolvaneList");
    }
    std::string Shown() { return ostzm::PanelRegistry::ShownText(*Panel()); }

    ZMErr Notify(const char* type, void* data = nullptr) {
        return host.Runtime().plugins.Notify(type, data);
    }

    // The "&Document Info" menu item, as a user chooses it.
    ZMErr RunMenuItem() { return host.Runtime().plugins.RunMenuItem(Globals().menuItem); }
    bool MenuItemChecked() { return host.Runtime().menus.Items().at(0)->checked; }

    // An untitled RGB document of 100 x 50 px holding one rectangle.
    host::document::Document& OpenDocument() {
        return host.Runtime().documents.Add(host::ImportSvgText(
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" height=\"50\">"
            "<rect id=\"a\" width=\"10\" height=\"10\"/></svg>",
            {}));
    }

    // Opens a document and shows the panel through its menu item.
    void ShowWithDocument() {
        OpenDocument();
        ASSERT_EQ(RunMenuItem(), ZM_ERR_NONE);
        ASSERT_TRUE(Panel()->IsVisible());
    }

    TestHost host;
};

}  // namespace zm::test
