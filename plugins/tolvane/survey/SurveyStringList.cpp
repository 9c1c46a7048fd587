#include "survey/SurveyStringList.hpp"

#include "report/Error.hpp"
#include "report/HostString.hpp"
#include "shell/FrameworkCalls.hpp"
#include "shell/SuiteSet.hpp"

#include <map>

namespace tolvane {

// The nodes of one list by text, in the host's order; nodes of equal text stand in list
// order. While every node went in through LinkStrAdd, or was appended in order, the list
// itself is sorted and a text's place in the index is its place in the list.
class SurveyStringIndex {
public:
    struct HostOrder {
        bool operator()(ZMUnicodeString first, ZMUnicodeString second) const {
            return CompareStrings(first, second) < 0;
        }
    };
    using Nodes = std::multimap<ZMUnicodeString, SurveyStringNode*, HostOrder>;

    Nodes nodes;
    SurveyStringNode* last = nullptr;
    bool sorted = true;
};

namespace {

SurveyStringIndex& IndexOf(SurveyStringList& list) {
    if (list.index == nullptr) {
        list.index = new SurveyStringIndex;
    }
    return *list.index;
}

// A node holding a copy of text, linked nowhere yet.
SurveyStringNode* MakeNode(ZMUnicodeString text) {
    void* block = nullptr;
    zm::Check(AllocatePluginBlock(sizeof(SurveyStringNode), &block));
    auto* node = static_cast<SurveyStringNode*>(block);  // zero-filled: no links, no text
    if (ZMErr error = sUnicodeStringSuite->Copy(text, &node->text); error != ZM_ERR_NONE) {
        FreePluginBlock(node);
        throw zm::Error(error);
    }
    node->count = 1;
    return node;
}

void DisposeNode(SurveyStringNode* node) {
    sUnicodeStringSuite->Dispose(node->text);
    FreePluginBlock(node);
}

// Puts node in front of `before`, or at the end when there is none.
void Link(SurveyStringList& list, SurveyStringIndex& index, SurveyStringNode* node,
          SurveyStringNode* before) {
    if (before == nullptr) {
        node->previous = index.last;
        if (index.last != nullptr) {
            index.last->next = node;
        } else {
            list.first = node;
        }
        index.last = node;
        return;
    }
    node->next = before;
    node->previous = before->previous;
    if (before->previous != nullptr) {
        before->previous->next = node;
    } else {
        list.first = node;
    }
    before->previous = node;
}

// Indexes and links a new node for text; the index entry goes in at hint.
void Insert(SurveyStringList& list, SurveyStringIndex& index, ZMUnicodeString text,
            SurveyStringIndex::Nodes::const_iterator hint, SurveyStringNode* before) {
    SurveyStringNode* node = MakeNode(text);
    try {
        index.nodes.emplace_hint(hint, node->text, node);
    } catch (...) {
        DisposeNode(node);
        throw;
    }
    Link(list, index, node, before);
}

}  // namespace

bool LinkStrFind(const SurveyStringList& list, ZMUnicodeString text) {
    if (list.index != nullptr) {
        return list.index->nodes.find(text) != list.index->nodes.end();
    }
    for (const SurveyStringNode* node = list.first; node != nullptr; node = node->next) {
        if (CompareStrings(node->text, text) == 0) {
            return true;
        }
    }
    return false;
}

ZMErr LinkStrAdd(SurveyStringList& list, ZMUnicodeString text, bool allowRepeat) {
    return zm::CodeOrNoMemory([&]() -> ZMErr {
        SurveyStringIndex& index = IndexOf(list);
        if (index.sorted) {
            // The first node not sorting before text is where the walk from the front stops.
            auto place = index.nodes.lower_bound(text);
            SurveyStringNode* before = place == index.nodes.end() ? nullptr : place->second;
            if (before != nullptr && !allowRepeat && CompareStrings(text, before->text) == 0) {
                ++before->count;
                return ZM_ERR_NONE;
            }
            Insert(list, index, text, place, before);
            return ZM_ERR_NONE;
        }
        // Appended entries broke the order: only the walk itself finds the same place.
        SurveyStringNode* before = list.first;
        for (; before != nullptr; before = before->next) {
            int32_t order = CompareStrings(text, before->text);
            if (order == 0 && !allowRepeat) {
                ++before->count;
                return ZM_ERR_NONE;
            }
            if (order <= 0) {
                break;
            }
        }
        Insert(list, index, text, index.nodes.upper_bound(text), before);
        return ZM_ERR_NONE;
    });
}

ZMErr LinkStrAppend(SurveyStringList& list, ZMUnicodeString text, bool allowRepeat) {
    return zm::CodeOrNoMemory([&]() -> ZMErr {
        SurveyStringIndex& index = IndexOf(list);
        if (!allowRepeat && index.nodes.find(text) != index.nodes.end()) {
            return 1;
        }
        if (index.sorted && index.last != nullptr &&
            CompareStrings(index.last->text, text) > 0) {
            index.sorted = false;
        }
        Insert(list, index, text, index.nodes.upper_bound(text), nullptr);
        return ZM_ERR_NONE;
    });
}

void FreeSurveyStringList(SurveyStringList& list) {
    SurveyStringNode* node = list.first;
    while (node != nullptr) {
        SurveyStringNode* next = node->next;
        DisposeNode(node);
        node = next;
    }
    delete list.index;
    list.first = nullptr;
    list.index = nullptr;
}

int32_t CountSurveyStrings(const SurveyStringList& list) {
    int32_t count = 0;
    for (const SurveyStringNode* node = list.first; node != nullptr; node = node->next) {
        ++count;
    }
    return count;
}

}  // namespace tolvane
