#pragma once

#include "ostcore/Export.hpp"
#include "ostcore/Localize.hpp"
#include "ostcore/RefCounted.hpp"
#include "ostui/FlyoutMenu.hpp"
#include "ostui/ThemeFont.hpp"
#include "ostui/View.hpp"
#include "ostzm/BasePanelCreationOptions.hpp"

#include <zelmora/ZMTypes.h>

#include <string>

namespace ostzm {

// A dockable panel of a plug-in. Its views come from the layout resource "<layoutId>.eve" and
// its flyout menu from "<layoutId>.mnu" (optional) in the plug-in's bundle, as the bundle's
// resource map names them (see PluginBundleRegistry). A panel starts hidden at its initial
// size and lists itself in the PanelRegistry while it lives. Throws std::runtime_error for an
// unregistered plug-in and ostui::ResourceError for a missing or malformed resource.
class OST_API ZMUIBasePanel : public virtual ostcore::RefCounted {
public:
    ZMUIBasePanel(ZMPluginRef plugin, int layoutId, const BasePanelCreationOptions& options,
                  int flags);
    ~ZMUIBasePanel() override;
    ZMUIBasePanel(const ZMUIBasePanel&) = delete;
    ZMUIBasePanel& operator=(const ZMUIBasePanel&) = delete;

    // A flyout item was chosen (only enabled items reach here).
    virtual void OnFlyoutMenuCommand(int id);
    // The flyout is about to open: bring its items' states up to date.
    virtual void UpdateFlyoutMenu();
    // The panel's size changed; the base lays the views out at the new size, so overrides
    // call it before they read frames.
    virtual void OnResize();
    virtual void OnVisibilityChanged(bool shown);

    // Null when the bundle has no menu resource for the panel.
    ostui::FlyoutMenuPtr GetFlyoutMenu() const { return flyoutMenu_; }
    // The root view, named after the layout; FindChild finds the layout's views.
    ostui::ViewPtr GetView() const { return root_; }

    // Show and Hide call OnVisibilityChanged when the visibility changes.
    void Show();
    void Hide();
    bool IsVisible() const { return visible_; }
    // Takes the new size (negative values count as 0) and calls OnResize.
    void Resize(float width, float height);
    float Width() const { return width_; }
    float Height() const { return height_; }

    // What a user opening the flyout and choosing an item does: UpdateFlyoutMenu, then the
    // command when the item is enabled. Returns whether OnFlyoutMenuCommand ran.
    bool ChooseFlyoutItem(int id);

    ZMPluginRef Plugin() const { return plugin_; }
    int LayoutId() const { return layoutId_; }
    int Flags() const { return flags_; }
    const BasePanelCreationOptions& CreationOptions() const { return options_; }
    const std::string& Title() const { return title_; }
    // The font the panel's controls use.
    ostui::ThemeFont GetThemeFont(ostui::ThemeFontSize size = ostui::ThemeFontSize::Small) const;
    const ostcore::Localizer& Localizer() const { return localizer_; }

private:
    ZMPluginRef plugin_;
    int layoutId_;
    int flags_;
    BasePanelCreationOptions options_;
    ostcore::Localizer localizer_;
    std::string title_;
    ostui::ViewPtr root_;
    ostui::FlyoutMenuPtr flyoutMenu_;
    bool visible_ = false;
    float width_ = 0.0f;
    float height_ = 0.0f;
};

}  // namespace ostzm
