#include "ostzm/ZMUIBasePanel.hpp"

#include "ostui/MenuParser.hpp"
#include "ostui/ResourceError.hpp"
#include "ostui/layout/LayoutBuilder.hpp"
#include "ostui/layout/LayoutEngine.hpp"
#include "ostui/layout/LayoutParser.hpp"
#include "ostzm/PanelRegistry.hpp"
#include "ostzm/PluginBundleRegistry.hpp"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace ostzm {

ZMUIBasePanel::ZMUIBasePanel(ZMPluginRef plugin, int layoutId,
                             const BasePanelCreationOptions& options, int flags)
    : plugin_(plugin), layoutId_(layoutId), flags_(flags), options_(options) {
    std::optional<PluginBundleInfo> bundle = PluginBundleRegistry::Find(plugin);
    if (!bundle) {
        throw std::runtime_error("a panel was asked for by a plug-in the toolkit does not know");
    }
    localizer_ = bundle->localizer;
    title_ = options.titleKey.empty() ? options.defaultTitle
                                      : ostcore::Localize(localizer_, options.titleKey);

    std::string layoutName = std::to_string(layoutId) + ".eve";
    auto layoutFile = bundle->resources.find(layoutName);
    if (layoutFile == bundle->resources.end()) {
        throw ostui::ResourceError(bundle->folder + ": no layout resource " + layoutName);
    }
    root_ = ostui::BuildLayout(ostui::ReadLayoutFile(layoutFile->second), localizer_);

    auto menuFile = bundle->resources.find(std::to_string(layoutId) + ".mnu");
    if (menuFile != bundle->resources.end()) {
        flyoutMenu_ = new ostui::FlyoutMenu(ostui::ReadMenuFile(menuFile->second), localizer_);
        flyoutMenu_->SetCommandHandler([this](int id) { OnFlyoutMenuCommand(id); });
    }

    // Laid out directly: a derived panel is not built yet, so no override may run.
    width_ = std::max(0.0f, options.initialWidth);
    height_ = std::max(0.0f, options.initialHeight);
    ostui::ArrangeLayout(*root_, width_, height_);
    PanelRegistry::Add(this);
}

ZMUIBasePanel::~ZMUIBasePanel() {
    PanelRegistry::Remove(this);
    if (flyoutMenu_) {
        flyoutMenu_->SetCommandHandler({});  // the menu may outlive the panel
    }
}

void ZMUIBasePanel::OnFlyoutMenuCommand(int /*id*/) {}

void ZMUIBasePanel::UpdateFlyoutMenu() {}

void ZMUIBasePanel::OnResize() {
    ostui::ArrangeLayout(*root_, width_, height_);
}

void ZMUIBasePanel::OnVisibilityChanged(bool /*shown*/) {}

void ZMUIBasePanel::Show() {
    if (!visible_) {
        visible_ = true;
        OnVisibilityChanged(true);
    }
}

void ZMUIBasePanel::Hide() {
    if (visible_) {
        visible_ = false;
        OnVisibilityChanged(false);
    }
}

void ZMUIBasePanel::Resize(float width, float height) {
    width_ = std::max(0.0f, width);
    height_ = std::max(0.0f, height);
    OnResize();
}

bool ZMUIBasePanel::ChooseFlyoutItem(int id) {
    if (!flyoutMenu_) {
        return false;
    }
    UpdateFlyoutMenu();
    return flyoutMenu_->Choose(id);
}

ostui::ThemeFont ZMUIBasePanel::GetThemeFont(ostui::ThemeFontSize size) const {
    return ostui::ThemeFont::Get(size);
}

}  // namespace ostzm
