#include "ostui/layout/LayoutEngine.hpp"

#include <algorithm>

namespace ostui {

namespace {

void ArrangeChildren(View& container) {
    if (!container.LaysOutChildren()) {
        return;
    }
    const LayoutHints& hints = container.Hints();
    bool vertical = hints.orientation == Orientation::Vertical;
    float innerWidth = std::max(0.0f, container.Frame().width - 2.0f * hints.margin);
    float innerHeight = std::max(0.0f, container.Frame().height - 2.0f * hints.margin);
    float mainExtent = vertical ? innerHeight : innerWidth;
    float crossExtent = vertical ? innerWidth : innerHeight;

    auto fillsMain = [&](const View& child) {
        return vertical ? child.Hints().fillVertical : child.Hints().fillHorizontal;
    };
    auto fillsCross = [&](const View& child) {
        return vertical ? child.Hints().fillHorizontal : child.Hints().fillVertical;
    };
    auto ownMain = [&](const View& child) {
        return vertical ? child.Hints().height : child.Hints().width;
    };
    auto ownCross = [&](const View& child) {
        return vertical ? child.Hints().width : child.Hints().height;
    };

    float fixed = 0.0f;
    int fillers = 0;
    for (const ViewPtr& child : container.Children()) {
        if (!child->IsVisible()) {
            continue;
        }
        if (fillsMain(*child)) {
            ++fillers;
        } else {
            fixed += ownMain(*child);
        }
    }
    float share = fillers == 0 ? 0.0f : std::max(0.0f, mainExtent - fixed) / fillers;

    float position = hints.margin;
    for (const ViewPtr& child : container.Children()) {
        if (!child->IsVisible()) {
            continue;
        }
        float main = fillsMain(*child) ? share : ownMain(*child);
        float cross = fillsCross(*child) ? crossExtent : ownCross(*child);
        child->SetFrame(vertical ? ostcore::Rect{hints.margin, position, cross, main}
                                 : ostcore::Rect{position, hints.margin, main, cross});
        position += main;
        ArrangeChildren(*child);
    }
}

}  // namespace

void ArrangeLayout(View& root, float width, float height) {
    root.SetFrame({0.0f, 0.0f, std::max(0.0f, width), std::max(0.0f, height)});
    ArrangeChildren(root);
}

}  // namespace ostui
