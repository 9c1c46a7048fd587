#include "importers/svg/CssStyleSheet.hpp"

#include "importers/svg/CssFontShorthand.hpp"
#include "importers/svg/SvgNumbers.hpp"

#include <algorithm>
#include <optional>
#include <tuple>

namespace zm::host::svg {

namespace {

bool IsIdentChar(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

// The index of the quote that closes the string opening at `open`, or the text's end;
// backslashes escape the next character.
std::size_t EndOfString(std::string_view text, std::size_t open) {
    for (std::size_t i = open + 1; i < text.size(); ++i) {
        if (text[i] == '\\') {
            ++i;
        } else if (text[i] == text[open]) {
            return i;
        }
    }
    return text.size();
}

bool IsQuote(char c) { return c == '"' || c == '\''; }

// The text with comments replaced by a blank; strings are kept as they are.
std::string StripComments(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (IsQuote(text[i])) {
            std::size_t close = EndOfString(text, i);
            out += text.substr(i, close + 1 - i);
            i = close;
        } else if (text[i] == '/' && i + 1 < text.size() && text[i + 1] == '*') {
            auto end = text.find("*/", i + 2);
            i = end == std::string_view::npos ? text.size() : end + 1;
            out += ' ';
        } else {
            out += text[i];
        }
    }
    return out;
}

// Position of the first `stop` character at nesting level 0 (outside strings, parentheses
// and brackets) from `from`, or npos.
std::size_t FindTopLevel(std::string_view text, std::size_t from, std::string_view stops) {
    int depth = 0;
    for (std::size_t i = from; i < text.size(); ++i) {
        char c = text[i];
        if (IsQuote(c)) {
            i = EndOfString(text, i);
        } else if (depth == 0 && stops.find(c) != std::string_view::npos) {
            return i;
        } else if (c == '(' || c == '[') {
            ++depth;
        } else if ((c == ')' || c == ']') && depth > 0) {
            --depth;
        }
    }
    return std::string_view::npos;
}

// The position just after the block that opens at `open` ('{'), braces balanced.
std::size_t SkipBlock(std::string_view text, std::size_t open) {
    int depth = 0;
    for (std::size_t i = open; i < text.size(); ++i) {
        char c = text[i];
        if (IsQuote(c)) {
            i = EndOfString(text, i);
        } else if (c == '{') {
            ++depth;
        } else if (c == '}' && --depth == 0) {
            return i + 1;
        }
    }
    return text.size();
}

std::optional<std::string> ReadIdent(std::string_view text, std::size_t& i) {
    std::size_t start = i;
    while (i < text.size() && IsIdentChar(text[i])) {
        ++i;
    }
    if (i == start) {
        return std::nullopt;
    }
    return std::string(text.substr(start, i - start));
}

void SkipBlanks(std::string_view text, std::size_t& i) {
    while (i < text.size() && IsSvgSpace(text[i])) {
        ++i;
    }
}

// A quoted string (backslashes escape the next character) or an identifier.
std::optional<std::string> ReadValue(std::string_view text, std::size_t& i) {
    if (i < text.size() && IsQuote(text[i])) {
        std::size_t close = EndOfString(text, i);
        if (close >= text.size()) {
            return std::nullopt;  // an unclosed string
        }
        std::string value;
        for (std::size_t k = i + 1; k < close; ++k) {
            if (text[k] == '\\' && k + 1 < close) ++k;
            value += text[k];
        }
        i = close + 1;
        return value;
    }
    return ReadIdent(text, i);
}

// "[name op value flag]" from the opening bracket at i.
std::optional<CssAttributeTest> ReadAttributeTest(std::string_view text, std::size_t& i) {
    ++i;  // '['
    SkipBlanks(text, i);
    CssAttributeTest test;
    auto name = ReadIdent(text, i);
    if (!name) {
        return std::nullopt;
    }
    test.name = *name;
    SkipBlanks(text, i);
    if (i < text.size() && text[i] != ']') {
        if (text[i] == '=') {
            test.match = '=';
            ++i;
        } else if (std::string_view("~|^$*").find(text[i]) != std::string_view::npos &&
                   i + 1 < text.size() && text[i + 1] == '=') {
            test.match = text[i];
            i += 2;
        } else {
            return std::nullopt;
        }
        SkipBlanks(text, i);
        auto value = ReadValue(text, i);
        if (!value) {
            return std::nullopt;
        }
        test.value = *value;
        SkipBlanks(text, i);
        if (i < text.size() && (text[i] == 'i' || text[i] == 'I' || text[i] == 's' ||
                                text[i] == 'S')) {
            test.ignoreCase = text[i] == 'i' || text[i] == 'I';
            ++i;
            SkipBlanks(text, i);
        }
    }
    if (i >= text.size() || text[i] != ']') {
        return std::nullopt;
    }
    ++i;
    return test;
}

bool IsSimpleStart(char c) { return c == '.' || c == '#' || c == '[' || c == ':'; }

// The simple selectors after the type: .class, #id, [attribute], :first-child, :not(...).
// allowNot is false inside :not(), which takes no :not() of its own.
bool ReadSimpleSelector(std::string_view text, std::size_t& i, CssCompoundSelector& compound,
                        bool allowNot);

// One compound: an optional type or '*', then simple selectors. Nothing read is an error.
std::optional<CssCompoundSelector> ReadCompound(std::string_view text, std::size_t& i,
                                               bool allowNot) {
    CssCompoundSelector compound;
    bool any = false;
    if (i < text.size() && text[i] == '*') {
        compound.type = "*";
        ++i;
        any = true;
    } else if (i < text.size() && IsIdentChar(text[i])) {
        compound.type = *ReadIdent(text, i);
        any = true;
    }
    while (i < text.size() && IsSimpleStart(text[i])) {
        if (!ReadSimpleSelector(text, i, compound, allowNot)) {
            return std::nullopt;
        }
        any = true;
    }
    if (!any) {
        return std::nullopt;
    }
    return compound;
}

bool ReadSimpleSelector(std::string_view text, std::size_t& i, CssCompoundSelector& compound,
                        bool allowNot) {
    char kind = text[i];
    if (kind == '[') {
        auto test = ReadAttributeTest(text, i);
        if (!test) return false;
        compound.attributes.push_back(std::move(*test));
        return true;
    }
    ++i;
    auto name = ReadIdent(text, i);
    if (!name) {
        return false;  // also "::", a pseudo-element
    }
    if (kind == '.') {
        compound.classes.push_back(*name);
    } else if (kind == '#') {
        if (compound.id.empty()) {
            compound.id = *name;
        } else if (compound.id != *name) {
            compound.id = "\x01";  // two different ids: matches nothing
        }
    } else if (AsciiLower(*name) == "first-child") {
        compound.firstChild = true;
    } else if (AsciiLower(*name) == "not" && allowNot && i < text.size() && text[i] == '(') {
        std::size_t close = FindTopLevel(text, i + 1, ")");
        if (close == std::string_view::npos) {
            return false;
        }
        std::string_view argument = TrimSvgSpace(text.substr(i + 1, close - i - 1));
        std::size_t k = 0;
        auto negation = ReadCompound(argument, k, false);
        // One simple selector: a type alone, or one of the others alone.
        if (!negation || k != argument.size()) {
            return false;
        }
        std::size_t simpleCount = (negation->type.empty() ? 0 : 1) + negation->classes.size() +
                                  (negation->id.empty() ? 0 : 1) + negation->attributes.size() +
                                  (negation->firstChild ? 1 : 0);
        if (simpleCount != 1) {
            return false;
        }
        compound.negations.push_back(std::move(*negation));
        i = close + 1;
    } else {
        return false;  // other pseudo-classes
    }
    return true;
}

std::optional<CssSelector> ParseSelector(std::string_view text) {
    text = TrimSvgSpace(text);
    CssSelector selector;
    std::size_t i = 0;
    char pending = 0;
    while (i < text.size()) {
        auto compound = ReadCompound(text, i, true);
        if (!compound) {
            return std::nullopt;
        }
        if (!selector.compounds.empty()) {
            selector.combinators.push_back(pending);
        }
        selector.compounds.push_back(std::move(*compound));
        // The combinator to the next compound.
        bool space = false;
        while (i < text.size() && IsSvgSpace(text[i])) {
            ++i;
            space = true;
        }
        if (i >= text.size()) {
            break;
        }
        if (text[i] == '>') {
            pending = '>';
            ++i;
            SkipBlanks(text, i);
        } else if (space) {
            pending = ' ';
        } else {
            return std::nullopt;  // siblings and anything else
        }
        if (i >= text.size()) {
            return std::nullopt;
        }
    }
    if (selector.compounds.empty()) {
        return std::nullopt;
    }
    return selector;
}

std::string_view LocalName(pugi::xml_node element) {
    std::string_view name = element.name();
    auto colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}


bool HasWord(std::string_view words, std::string_view word) {
    std::size_t i = 0;
    while (i < words.size()) {
        while (i < words.size() && IsSvgSpace(words[i])) ++i;
        std::size_t start = i;
        while (i < words.size() && !IsSvgSpace(words[i])) ++i;
        if (i > start && words.substr(start, i - start) == word) {
            return true;
        }
    }
    return false;
}

bool PassesAttributeTest(const CssAttributeTest& test, pugi::xml_node element) {
    pugi::xml_attribute attribute = element.attribute(test.name.c_str());
    if (!attribute) {
        return false;
    }
    std::string actualText = test.ignoreCase ? AsciiLower(attribute.value()) : attribute.value();
    std::string wantedText = test.ignoreCase ? AsciiLower(test.value) : test.value;
    std::string_view actual = actualText, wanted = wantedText;
    switch (test.match) {
        case 0:
            return true;
        case '=':
            return actual == wanted;
        case '~':
            // A word never holds a blank, and an empty word is no word.
            return !wanted.empty() &&
                   std::none_of(wanted.begin(), wanted.end(), IsSvgSpace) &&
                   HasWord(actual, wanted);
        case '|':
            return actual == wanted ||
                   (actual.starts_with(wanted) && actual.size() > wanted.size() &&
                    actual[wanted.size()] == '-');
        case '^':
            return !wanted.empty() && actual.starts_with(wanted);
        case '$':
            return !wanted.empty() && actual.ends_with(wanted);
        case '*':
            return !wanted.empty() && actual.find(wanted) != std::string_view::npos;
        default:
            return false;
    }
}

bool IsFirstChild(pugi::xml_node element) {
    for (pugi::xml_node before = element.previous_sibling(); before;
         before = before.previous_sibling()) {
        if (before.type() == pugi::node_element) {
            return false;
        }
    }
    return true;
}

bool MatchesCompound(const CssCompoundSelector& compound, pugi::xml_node element) {
    if (element.type() != pugi::node_element) {
        return false;
    }
    if (compound.firstChild && !IsFirstChild(element)) {
        return false;
    }
    for (const auto& test : compound.attributes) {
        if (!PassesAttributeTest(test, element)) {
            return false;
        }
    }
    for (const auto& negation : compound.negations) {
        if (MatchesCompound(negation, element)) {
            return false;
        }
    }
    if (!compound.type.empty() && compound.type != "*" && compound.type != LocalName(element)) {
        return false;
    }
    if (!compound.id.empty() && compound.id != element.attribute("id").value()) {
        return false;
    }
    return std::all_of(compound.classes.begin(), compound.classes.end(),
                       [&](const std::string& name) {
                           return HasWord(element.attribute("class").value(), name);
                       });
}

// Whether compounds[0..index] match with compounds[index] on element.
bool MatchesFrom(const CssSelector& selector, std::size_t index, pugi::xml_node element) {
    if (!MatchesCompound(selector.compounds[index], element)) {
        return false;
    }
    if (index == 0) {
        return true;
    }
    char combinator = selector.combinators[index - 1];
    for (pugi::xml_node up = element.parent(); up && up.type() == pugi::node_element;
         up = up.parent()) {
        if (MatchesFrom(selector, index - 1, up)) {
            return true;
        }
        if (combinator == '>') {
            return false;
        }
    }
    return false;
}

}  // namespace

std::vector<CssDeclaration> ParseCssDeclarations(std::string_view block) {
    std::string text = StripComments(block);
    std::string_view view = text;
    std::vector<CssDeclaration> declarations;
    std::size_t i = 0;
    while (i <= view.size()) {
        std::size_t end = FindTopLevel(view, i, ";");
        if (end == std::string_view::npos) {
            end = view.size();
        }
        std::string_view item = view.substr(i, end - i);
        i = end + 1;
        auto colon = item.find(':');
        if (colon == std::string_view::npos) {
            continue;
        }
        std::string_view property = TrimSvgSpace(item.substr(0, colon));
        std::string_view value = TrimSvgSpace(item.substr(colon + 1));
        CssDeclaration declaration;
        auto bang = FindTopLevel(value, 0, "!");
        if (bang != std::string_view::npos) {
            if (AsciiLower(TrimSvgSpace(value.substr(bang + 1))) != "important") {
                continue;
            }
            declaration.important = true;
            value = TrimSvgSpace(value.substr(0, bang));
        }
        if (property.empty() || value.empty() ||
            !std::all_of(property.begin(), property.end(), IsIdentChar)) {
            continue;
        }
        declaration.property = AsciiLower(property);
        declaration.value = std::string(value);
        declarations.push_back(std::move(declaration));
    }
    return declarations;
}

uint32_t CssSelector::Specificity() const {
    uint32_t ids = 0, classes = 0, types = 0;
    // Attribute tests and pseudo-classes weigh as classes; a :not() as its argument.
    auto count = [&](const CssCompoundSelector& compound, auto& self) -> void {
        ids += compound.id.empty() ? 0 : 1;
        classes += static_cast<uint32_t>(compound.classes.size() + compound.attributes.size() +
                                         (compound.firstChild ? 1 : 0));
        types += compound.type.empty() || compound.type == "*" ? 0 : 1;
        for (const auto& negation : compound.negations) {
            self(negation, self);
        }
    };
    for (const auto& compound : compounds) {
        count(compound, count);
    }
    auto cap = [](uint32_t n) { return std::min<uint32_t>(n, 1023); };
    return cap(ids) << 20 | cap(classes) << 10 | cap(types);
}

bool CssSelector::Matches(pugi::xml_node element) const {
    return !compounds.empty() && MatchesFrom(*this, compounds.size() - 1, element);
}

void CssStyleSheet::Append(std::string_view sheet) {
    std::string text = StripComments(sheet);
    std::string_view view = text;
    std::size_t i = 0;
    while (i < view.size()) {
        while (i < view.size() && IsSvgSpace(view[i])) {
            ++i;
        }
        if (i >= view.size()) {
            break;
        }
        if (view.substr(i).starts_with("<!--")) {
            i += 4;
            continue;
        }
        if (view.substr(i).starts_with("-->")) {
            i += 3;
            continue;
        }
        std::size_t stop = FindTopLevel(view, i, view[i] == '@' ? "{;" : "{");
        if (stop == std::string_view::npos) {
            break;  // a prelude without a block: the end of the sheet
        }
        if (view[i] == '@') {
            i = view[stop] == ';' ? stop + 1 : SkipBlock(view, stop);
            continue;
        }
        std::string_view prelude = view.substr(i, stop - i);
        std::size_t after = SkipBlock(view, stop);
        std::size_t blockEnd = after > stop + 1 && view[after - 1] == '}' ? after - 1 : after;
        std::string_view block = view.substr(stop + 1, blockEnd - stop - 1);
        i = after;

        std::vector<CssSelector> selectors;
        bool valid = true;
        std::size_t from = 0;
        while (valid && from <= prelude.size()) {
            std::size_t comma = FindTopLevel(prelude, from, ",");
            if (comma == std::string_view::npos) {
                comma = prelude.size();
            }
            auto selector = ParseSelector(prelude.substr(from, comma - from));
            if (!selector) {
                valid = false;
            } else {
                selectors.push_back(std::move(*selector));
            }
            from = comma + 1;
        }
        if (!valid) {
            continue;
        }
        auto declarations = ParseCssDeclarations(block);
        for (auto& selector : selectors) {
            rules_.push_back({std::move(selector), declarations, rules_.size()});
        }
    }
}

bool CssStyleSheet::DefinesClass(std::string_view name) const {
    for (const auto& rule : rules_) {
        for (const auto& compound : rule.selector.compounds) {
            if (std::find(compound.classes.begin(), compound.classes.end(), name) !=
                compound.classes.end()) {
                return true;
            }
        }
    }
    return false;
}

std::map<std::string, std::string> CssStyleSheet::Cascade(
    pugi::xml_node element, std::span<const std::string_view> presentationAttributes) const {
    // Rank: importance, origin (0 attribute, 1 sheet, 2 style attribute), specificity, order.
    using Rank = std::tuple<int, int, uint32_t, std::size_t>;
    std::map<std::string, std::pair<Rank, std::string>> winners;
    auto offerOne = [&](const CssDeclaration& declaration, int origin, uint32_t specificity,
                        std::size_t order) {
        Rank rank{declaration.important ? 1 : 0, origin, specificity, order};
        auto found = winners.find(declaration.property);
        if (found == winners.end() || found->second.first <= rank) {
            winners[declaration.property] = {rank, declaration.value};
        }
    };
    // A shorthand takes part as its longhands, at its own place in the cascade.
    auto offer = [&](const CssDeclaration& declaration, int origin, uint32_t specificity,
                     std::size_t order) {
        if (declaration.property != "font") {
            offerOne(declaration, origin, specificity, order);
        } else if (auto longhands = ExpandFontShorthand(declaration.value, declaration.important)) {
            for (const auto& longhand : *longhands) {
                offerOne(longhand, origin, specificity, order);
            }
        }
    };
    for (std::string_view name : presentationAttributes) {
        std::string key(name);
        pugi::xml_attribute attribute = element.attribute(key.c_str());
        if (attribute) {
            std::string_view value = TrimSvgSpace(attribute.value());
            if (!value.empty()) {
                offer({key, std::string(value), false}, 0, 0, 0);
            }
        }
    }
    for (const auto& rule : rules_) {
        if (rule.selector.Matches(element)) {
            for (const auto& declaration : rule.declarations) {
                offer(declaration, 1, rule.selector.Specificity(), rule.order);
            }
        }
    }
    std::size_t order = 0;
    for (const auto& declaration : ParseCssDeclarations(element.attribute("style").value())) {
        offer(declaration, 2, 0, order++);
    }
    std::map<std::string, std::string> values;
    for (auto& [property, winner] : winners) {
        values.emplace(property, std::move(winner.second));
    }
    return values;
}

}  // namespace zm::host::svg
