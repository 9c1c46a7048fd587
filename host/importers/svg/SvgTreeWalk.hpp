#pragma once

#include <pugixml.hpp>

#include <cstddef>

namespace zm::host::svg {

// Visits every element under root (root included) in document order without recursion, so
// a document's depth cannot exhaust the stack. visit(element, depth) with root at depth 0.
template <typename Visit>
void ForEachElement(pugi::xml_node root, Visit&& visit) {
    std::size_t depth = 0;
    pugi::xml_node node = root;
    while (node) {
        if (node.type() == pugi::node_element) {
            visit(node, depth);
        }
        if (node.type() == pugi::node_element && node.first_child()) {
            node = node.first_child();
            ++depth;
            continue;
        }
        while (node != root && !node.next_sibling()) {
            node = node.parent();
            --depth;
        }
        node = node == root ? pugi::xml_node() : node.next_sibling();
    }
}

}  // namespace zm::host::svg
