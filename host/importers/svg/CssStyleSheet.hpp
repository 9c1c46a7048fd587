#pragma once

#include <pugixml.hpp>

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zm::host::svg {

struct CssDeclaration {
    std::string property;  // lower case
    std::string value;     // trimmed, without "!important"
    bool important = false;
};

// The declarations of a rule's block or of a style attribute: "fill: red; stroke: blue
// !important". Malformed declarations are skipped, the rest kept, as CSS does.
std::vector<CssDeclaration> ParseCssDeclarations(std::string_view block);

// [name], [name=value], [name~=value] (one of its words), [name|=value] (it or it then "-"),
// [name^=value], [name$=value], [name*=value] (starts, ends, contains); " i" before the
// bracket compares the value ignoring ASCII case.
struct CssAttributeTest {
    std::string name;
    char match = 0;  // 0 presence, '=', '~', '|', '^', '$' or '*'
    std::string value;
    bool ignoreCase = false;
};

// Type ("rect", "*" or empty for any), id, classes, attribute tests and pseudo-classes
// (:first-child, :not() of one simple selector) that one element must all pass.
struct CssCompoundSelector {
    std::string type;
    std::string id;
    std::vector<std::string> classes;
    std::vector<CssAttributeTest> attributes;
    bool firstChild = false;
    // Each :not()'s argument, a compound holding one simple selector.
    std::vector<CssCompoundSelector> negations;
};

// Compounds from the outermost to the subject, joined by descendant (' ') or child ('>')
// combinators: combinators[i] joins compounds[i] and compounds[i + 1].
struct CssSelector {
    std::vector<CssCompoundSelector> compounds;
    std::vector<char> combinators;

    // (ids, classes, types) packed so that a larger number is the more specific selector.
    uint32_t Specificity() const;
    bool Matches(pugi::xml_node element) const;
};

struct CssRule {
    CssSelector selector;
    std::vector<CssDeclaration> declarations;
    std::size_t order = 0;  // position among all rules; later wins among equals
};

// The rules of a document's <style> sheets: type, class, id, universal and attribute
// selectors, :first-child and :not(), compound selectors, descendant and child combinators,
// selector lists. A rule whose selector uses anything else (other pseudo-classes, pseudo-
// elements, siblings, namespaces) is dropped, as CSS drops a rule it cannot read; at-rules
// are skipped with their blocks.
class CssStyleSheet {
public:
    // Reads one sheet's text; its rules come after those already read.
    void Append(std::string_view text);
    const std::vector<CssRule>& Rules() const { return rules_; }
    // Whether any rule's selector names the class.
    bool DefinesClass(std::string_view name) const;

    // The declared value of every property for the element, by the cascade: presentation
    // attributes (those named in presentationAttributes) lose to every sheet rule, rules
    // rank by specificity then order, the style attribute beats rules, and !important
    // declarations beat all normal ones (a style attribute's over a sheet's).
    std::map<std::string, std::string> Cascade(
        pugi::xml_node element, std::span<const std::string_view> presentationAttributes) const;

private:
    std::vector<CssRule> rules_;
};

}  // namespace zm::host::svg
