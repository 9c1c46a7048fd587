#pragma once

#include "ostcore/Export.hpp"
#include "ostcore/Localize.hpp"
#include "ostcore/RefCounted.hpp"
#include "ostui/MenuEntry.hpp"

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>

#include <string>
#include <vector>

namespace ostui {

class FlyoutMenu;
using FlyoutMenuPtr = boost::intrusive_ptr<FlyoutMenu>;

// A panel's flyout menu. Items are addressed by id; each has three states: enabled, checked,
// and "default" (drawn in the dimmed-default style that marks the item a panel opens on).
// Operations on an id the menu does not hold do nothing and queries answer false.
class OST_API FlyoutMenu : public ostcore::RefCounted {
public:
    using CommandHandler = boost::function<void(int id)>;

    FlyoutMenu(std::vector<MenuEntry> entries, ostcore::Localizer localizer);
    ~FlyoutMenu() override;

    const std::vector<MenuEntry>& Entries() const { return entries_; }
    std::vector<int> ItemIds() const;
    bool HasItem(int id) const;

    void EnableItem(int id, bool enabled);
    bool IsItemEnabled(int id) const;
    void CheckItem(int id, bool checked);
    bool IsItemChecked(int id) const;
    void SetItemDefault(int id, bool isDefault);
    bool IsItemDefault(int id) const;

    // The item's localized text, mnemonic marks included ("&Document"); empty for no item.
    std::string ItemText(int id) const;
    // The same without mnemonic marks: "&&" shows one "&", a single "&" shows nothing.
    std::string ItemLabel(int id) const;

    void SetCommandHandler(CommandHandler handler) { handler_ = std::move(handler); }
    // Chooses the item as a user would: only an enabled item runs the handler. Returns
    // whether the handler ran.
    bool Choose(int id);

private:
    struct ItemState {
        bool isDefault = false;
    };
    MenuEntry* Find(int id);
    const MenuEntry* Find(int id) const;

    std::vector<MenuEntry> entries_;
    std::vector<ItemState> states_;  // parallel to entries_
    ostcore::Localizer localizer_;
    CommandHandler handler_;
};

}  // namespace ostui
