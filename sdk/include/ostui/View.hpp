#pragma once

#include "ostcore/Export.hpp"
#include "ostcore/Rect.hpp"
#include "ostcore/RefCounted.hpp"
#include "ostui/LayoutHints.hpp"

#include <boost/any.hpp>
#include <boost/intrusive_ptr.hpp>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ostui {

class View;
using ViewPtr = boost::intrusive_ptr<View>;

// A rectangle of the user interface with an identifier, a frame in its parent's coordinates,
// and children it holds by reference. Layout resources name views by identifier; FindChild
// looks them up anywhere below a view.
class OST_API View : public ostcore::RefCounted {
public:
    explicit View(std::string id = {});
    ~View() override;
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    const std::string& Id() const { return id_; }
    void SetId(std::string id) { id_ = std::move(id); }

    const ostcore::Rect& Frame() const { return frame_; }
    void SetFrame(const ostcore::Rect& frame);

    bool IsVisible() const { return visible_; }
    void SetVisible(bool visible) { visible_ = visible; }
    // A view is enabled when it and every view above it are.
    bool IsEnabled() const;
    bool IsEnabledItself() const { return enabled_; }
    void SetEnabled(bool enabled) { enabled_ = enabled; }

    bool TakesFocus() const { return takesFocus_; }
    void SetTakesFocus(bool takesFocus) { takesFocus_ = takesFocus; }
    bool HasBorder() const { return border_; }
    void SetBorder(bool border) { border_ = border; }

    LayoutHints& Hints() { return hints_; }
    const LayoutHints& Hints() const { return hints_; }

    // Takes the child from any parent it had. Null children are ignored.
    void AddChild(const ViewPtr& child);
    // False when `child` is not a direct child.
    bool RemoveChild(const View* child);
    void RemoveAllChildren();
    const std::vector<ViewPtr>& Children() const { return children_; }
    View* Parent() const { return parent_; }

    // The first view below this one (depth first, in child order) with that identifier;
    // null when there is none. The view itself is not searched.
    ViewPtr FindChild(std::string_view id) const;
    template <typename T>
    boost::intrusive_ptr<T> FindChildAs(std::string_view id) const {
        return boost::intrusive_ptr<T>(dynamic_cast<T*>(FindChild(id).get()));
    }

    // Whether the layout engine places this view's children; views that place their own
    // (a list box its rows) answer false.
    virtual bool LaysOutChildren() const { return true; }

    // Open-ended attributes (a layout's theme, say) that no member of the view models.
    void SetProperty(const std::string& name, boost::any value);
    // Null when the view has no such property.
    const boost::any* Property(const std::string& name) const;

protected:
    // Called after the frame changed; the view may place what it holds.
    virtual void OnFrameChanged() {}

private:
    std::string id_;
    ostcore::Rect frame_;
    bool visible_ = true;
    bool enabled_ = true;
    bool takesFocus_ = true;
    bool border_ = false;
    LayoutHints hints_;
    std::vector<ViewPtr> children_;
    View* parent_ = nullptr;
    std::map<std::string, boost::any> properties_;
};

}  // namespace ostui
