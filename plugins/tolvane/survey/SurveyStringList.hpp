#pragma once

#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// One entry of a survey list. Nodes come from the host's block allocator; the text is the
// node's own host string.
struct SurveyStringNode {
    int32_t count;  // how often the text was offered; 1 when the node is made
    SurveyStringNode* previous;
    SurveyStringNode* next;
    ZMUnicodeString text;
};

class SurveyStringIndex;

// A list head. `first` is the list as readers walk it. `index` finds a text's place without
// walking the list, so large surveys stay fast; it is built by the operations below and goes
// with FreeSurveyStringList. A zero-filled head is an empty list.
struct SurveyStringList {
    SurveyStringNode* first;
    SurveyStringIndex* index;
};

// True when a node's text equals text (the host's comparison).
bool LinkStrFind(const SurveyStringList& list, ZMUnicodeString text);

// Keeps the list in ascending order of the host's string comparison: the text goes in front
// of the first node it sorts before; on a node it equals, allowRepeat puts a new node in
// front of it, otherwise that node's count goes up by one. A copy of text is stored. 0 on
// success, non-zero (the host's code) when a node could not be made.
ZMErr LinkStrAdd(SurveyStringList& list, ZMUnicodeString text, bool allowRepeat);

// Adds a copy of text at the end. Without allowRepeat, a text already in the list is refused
// with 1. 0 on success, non-zero when a node could not be made.
ZMErr LinkStrAppend(SurveyStringList& list, ZMUnicodeString text, bool allowRepeat);

// Gives back every node (its text first, then the node) and leaves the list empty.
void FreeSurveyStringList(SurveyStringList& list);

// The number of nodes.
int32_t CountSurveyStrings(const SurveyStringList& list);

}  // namespace tolvane
