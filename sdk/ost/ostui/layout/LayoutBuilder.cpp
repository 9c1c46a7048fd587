#include "ostui/layout/LayoutBuilder.hpp"

#include "ostui/ListBox.hpp"
#include "ostui/ScrollBar.hpp"
#include "ostui/StaticText.hpp"

namespace ostui {

namespace {

ViewPtr MakeView(const LayoutNode& node, const ostcore::Localizer& localizer) {
    ViewPtr view;
    switch (node.kind) {
        case LayoutViewKind::SubView:
            view = new View(node.id);
            view->SetProperty("theme", node.theme);
            break;
        case LayoutViewKind::List: {
            auto list = new ListBox(node.id);
            list->SetFontSize(node.fontSize);
            view = list;
            break;
        }
        case LayoutViewKind::Text:
            view = new StaticText(node.id, ostcore::Localize(localizer, node.text),
                                  ThemeFont::Get(node.fontSize));
            break;
        case LayoutViewKind::GripperGap: {
            view = new View();
            view->Hints().width = kVerticalScrollBarWidth;
            view->Hints().height = kVerticalScrollBarWidth;
            view->SetTakesFocus(false);
            return view;
        }
    }
    view->Hints() = node.hints;
    view->SetTakesFocus(node.takesFocus);
    view->SetBorder(node.border);
    for (const LayoutNode& child : node.children) {
        view->AddChild(MakeView(child, localizer));
    }
    return view;
}

}  // namespace

ViewPtr BuildLayout(const LayoutDescription& layout, const ostcore::Localizer& localizer) {
    ViewPtr root(new View(layout.name));
    root->Hints().fillHorizontal = true;
    root->Hints().fillVertical = true;
    root->SetTakesFocus(false);
    for (const LayoutNode& node : layout.views) {
        root->AddChild(MakeView(node, localizer));
    }
    return root;
}

}  // namespace ostui
