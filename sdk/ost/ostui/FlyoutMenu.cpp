#include "ostui/FlyoutMenu.hpp"

namespace ostui {

FlyoutMenu::FlyoutMenu(std::vector<MenuEntry> entries, ostcore::Localizer localizer)
    : entries_(std::move(entries)), states_(entries_.size()), localizer_(std::move(localizer)) {}

FlyoutMenu::~FlyoutMenu() = default;

std::vector<int> FlyoutMenu::ItemIds() const {
    std::vector<int> ids;
    for (const MenuEntry& entry : entries_) {
        if (!entry.separator) {
            ids.push_back(entry.id);
        }
    }
    return ids;
}

bool FlyoutMenu::HasItem(int id) const {
    return Find(id) != nullptr;
}

void FlyoutMenu::EnableItem(int id, bool enabled) {
    if (MenuEntry* entry = Find(id)) {
        entry->enabled = enabled;
    }
}

bool FlyoutMenu::IsItemEnabled(int id) const {
    const MenuEntry* entry = Find(id);
    return entry != nullptr && entry->enabled;
}

void FlyoutMenu::CheckItem(int id, bool checked) {
    if (MenuEntry* entry = Find(id)) {
        entry->checked = checked;
    }
}

bool FlyoutMenu::IsItemChecked(int id) const {
    const MenuEntry* entry = Find(id);
    return entry != nullptr && entry->checked;
}

void FlyoutMenu::SetItemDefault(int id, bool isDefault) {
    if (MenuEntry* entry = Find(id)) {
        states_[static_cast<std::size_t>(entry - entries_.data())].isDefault = isDefault;
    }
}

bool FlyoutMenu::IsItemDefault(int id) const {
    const MenuEntry* entry = Find(id);
    return entry != nullptr && states_[static_cast<std::size_t>(entry - entries_.data())].isDefault;
}

std::string FlyoutMenu::ItemText(int id) const {
    const MenuEntry* entry = Find(id);
    return entry == nullptr ? std::string() : ostcore::Localize(localizer_, entry->key);
}

std::string FlyoutMenu::ItemLabel(int id) const {
    std::string text = ItemText(id);
    std::string label;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '&') {
            label += text[i];
        } else if (i + 1 < text.size() && text[i + 1] == '&') {
            label += '&';
            ++i;
        }
    }
    return label;
}

bool FlyoutMenu::Choose(int id) {
    if (!IsItemEnabled(id) || !handler_) {
        return false;
    }
    handler_(id);
    return true;
}

MenuEntry* FlyoutMenu::Find(int id) {
    return const_cast<MenuEntry*>(static_cast<const FlyoutMenu*>(this)->Find(id));
}

const MenuEntry* FlyoutMenu::Find(int id) const {
    for (const MenuEntry& entry : entries_) {
        if (!entry.separator && entry.id == id) {
            return &entry;
        }
    }
    return nullptr;
}

}  // namespace ostui
