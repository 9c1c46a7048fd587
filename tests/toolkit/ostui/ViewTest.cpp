#include "ostui/View.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using ostui::View;
using ostui::ViewPtr;

TEST(ViewTest, FindChildSearchesEveryLevelBelowButNotTheViewItself) {
    ViewPtr root(new View("root"));
    ViewPtr middle(new View("middle"));
    ViewPtr leaf(new View("leaf"));
    root->AddChild(middle);
    middle->AddChild(leaf);
    EXPECT_EQ(root->FindChild("leaf"), leaf);
    EXPECT_EQ(root->FindChild("middle"), middle);
    EXPECT_EQ(root->FindChild("root"), nullptr);
    EXPECT_EQ(root->FindChild("absent"), nullptr);
}

TEST(ViewTest, AddingAChildTakesItFromItsFormerParent) {
    ViewPtr first(new View("first"));
    ViewPtr second(new View("second"));
    ViewPtr child(new View("child"));
    first->AddChild(child);
    second->AddChild(child);
    EXPECT_TRUE(first->Children().empty());
    EXPECT_EQ(child->Parent(), second.get());
}

TEST(ViewTest, AViewUnderADisabledViewIsDisabled) {
    ViewPtr root(new View("root"));
    ViewPtr child(new View("child"));
    root->AddChild(child);
    root->SetEnabled(false);
    EXPECT_TRUE(child->IsEnabledItself());
    EXPECT_FALSE(child->IsEnabled());
}

TEST(ViewTest, PropertiesHoldAnyValue) {
    ViewPtr view(new View("view"));
    view->SetProperty("theme", std::string("panel"));
    ASSERT_NE(view->Property("theme"), nullptr);
    EXPECT_EQ(boost::any_cast<std::string>(*view->Property("theme")), "panel");
    EXPECT_EQ(view->Property("absent"), nullptr);
}

}  // namespace
