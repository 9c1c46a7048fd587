#include "framework/Declarations.hpp"

#include "runtime/HostError.hpp"

namespace zm::host {

namespace {

[[noreturn]] void Reject(const std::string& reason) {
    throw HostError(ZM_ERR_BAD_DECLARATION, "declaration list: " + reason);
}

std::string Text(ZMDeclarationWord word, const char* what) {
    if (word == 0) {
        Reject(std::string("missing ") + what);
    }
    return reinterpret_cast<const char*>(word);
}

void ExpectTerminator(ZMDeclarationWord word, const char* what) {
    if (word != ZM_DECL_TERMINATOR) {
        Reject(std::string(what) + " does not end with the terminator word");
    }
}

}  // namespace

Declarations ReadDeclarations(const ZMDeclarationWord* words) {
    Declarations result;
    if (words == nullptr) {
        return result;
    }
    for (const ZMDeclarationWord* word = words; *word != ZM_DECL_END;) {
        switch (*word) {
            case ZM_DECL_SUITES: {
                if (result.suites != nullptr) {
                    Reject("two suite lists");
                }
                Text(word[1], "plug-in name of the suite list");
                if (word[2] != ZM_SUITE_LIST_FORMAT || word[3] != ZM_SUITE_LIST_LEVEL) {
                    Reject("suite list of an unknown format");
                }
                result.suites = reinterpret_cast<const ZMSuiteDeclaration*>(word[4]);
                if (result.suites == nullptr) {
                    Reject("suite list without a table");
                }
                word += 5;
                break;
            }
            case ZM_DECL_MENU_ITEM: {
                MenuDeclaration menu;
                menu.group = Text(word[1], "menu group");
                auto text = static_cast<uint32_t>(word[2]);
                menu.stringListId = static_cast<int32_t>(text >> 16);
                menu.stringIndex = static_cast<int32_t>(text & 0xFFFFu);
                menu.options = static_cast<int32_t>(static_cast<uint32_t>(word[4]));
                menu.commandNumber = static_cast<int32_t>(word[5]);
                ExpectTerminator(word[6], "a menu item");
                result.menuItems.push_back(std::move(menu));
                word += 7;
                break;
            }
            case ZM_DECL_NOTIFIER: {
                NotifierDeclaration notifier;
                notifier.owner = Text(word[1], "notifier owner");
                notifier.type = Text(word[2], "notifier type");
                ExpectTerminator(word[3], "a notifier");
                result.notifiers.push_back(std::move(notifier));
                word += 4;
                break;
            }
            default:
                Reject("unknown kind " + std::to_string(*word));
        }
    }
    return result;
}

}  // namespace zm::host
