#pragma once

#include <cstdint>
#include <initializer_list>

namespace tolvane {

// True while the report is being saved, or when the panel shows one of the categories
// (values of Globals::mode): the collectors fill a list only where it is shown or written.
bool ShownOrSaving(std::initializer_list<int16_t> categories);

// Every collector runs while it lives, whatever the panel shows: a run that counts the whole
// document (the close-time statistics) needs them all.
class EveryCategory {
public:
    EveryCategory();
    ~EveryCategory();
    EveryCategory(const EveryCategory&) = delete;
    EveryCategory& operator=(const EveryCategory&) = delete;

private:
    bool previous_;
};

}  // namespace tolvane
