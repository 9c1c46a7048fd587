#include "ostui/FlyoutMenu.hpp"

#include "ostui/MenuParser.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace {

using ostui::FlyoutMenu;
using ostui::FlyoutMenuPtr;

FlyoutMenuPtr Menu(ostcore::Localizer localizer = {}) {
    return FlyoutMenuPtr(new FlyoutMenu(
        ostui::ParseMenu(R"(<menu>
            <item id="1" text="$$$/T/Mnu/0=Selection &amp;Only"/>
            <separator/>
            <item id="2" text="$$$/T/Mnu/2=&amp;Document"/>
            <item id="3" text="$$$/T/Mnu/3=Rock &amp;&amp; &amp;Roll"/>
          </menu>)",
                         "test"),
        std::move(localizer)));
}

TEST(FlyoutMenuTest, EachItemKeepsItsThreeStatesByIdApart) {
    FlyoutMenuPtr menu = Menu();
    menu->EnableItem(2, false);
    menu->CheckItem(3, true);
    menu->SetItemDefault(1, true);
    EXPECT_FALSE(menu->IsItemEnabled(2));
    EXPECT_TRUE(menu->IsItemEnabled(3));
    EXPECT_TRUE(menu->IsItemChecked(3));
    EXPECT_FALSE(menu->IsItemChecked(1));
    EXPECT_TRUE(menu->IsItemDefault(1));
    EXPECT_FALSE(menu->IsItemDefault(2));
    EXPECT_FALSE(menu->IsItemChecked(2));
}

TEST(FlyoutMenuTest, UnknownIdsChangeNothingAndAnswerFalse) {
    FlyoutMenuPtr menu = Menu();
    menu->EnableItem(99, true);
    menu->CheckItem(99, true);
    EXPECT_FALSE(menu->HasItem(99));
    EXPECT_FALSE(menu->IsItemEnabled(99));
    EXPECT_FALSE(menu->IsItemChecked(99));
    EXPECT_EQ(menu->ItemIds(), (std::vector<int>{1, 2, 3}));
}

TEST(FlyoutMenuTest, TextsGoThroughTheLocalizer) {
    FlyoutMenuPtr plain = Menu();
    EXPECT_EQ(plain->ItemText(2), "&Document");  // no localizer: the default text
    EXPECT_EQ(plain->ItemLabel(2), "Document");
    EXPECT_EQ(plain->ItemLabel(3), "Rock & Roll");  // "&&" shows one ampersand
    FlyoutMenuPtr german = Menu([](const std::string& key) {
        return key == "$$$/T/Mnu/2=&Document" ? std::string("&Dokument") : std::string("?");
    });
    EXPECT_EQ(german->ItemText(2), "&Dokument");
}

TEST(FlyoutMenuTest, OnlyEnabledItemsRunTheCommand) {
    FlyoutMenuPtr menu = Menu();
    std::vector<int> chosen;
    menu->SetCommandHandler([&](int id) { chosen.push_back(id); });
    menu->EnableItem(2, false);
    EXPECT_FALSE(menu->Choose(2));
    EXPECT_TRUE(menu->Choose(3));
    EXPECT_FALSE(menu->Choose(42));
    EXPECT_EQ(chosen, std::vector<int>{3});
}

}  // namespace
