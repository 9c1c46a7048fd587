#include "shell/PluginDescription.hpp"

#include "shell/Handlers.hpp"
#include "shell/SuiteSet.hpp"

#include <zelmora/ZMMenuSuite.h>
#include <zelmora/ZMNotifierSuite.h>

namespace tolvane {

namespace {

ZMDeclarationWord Word(const void* pointer) { return reinterpret_cast<ZMDeclarationWord>(pointer); }

// Menu text: string 1 of string list 16000, packed as list id << 16 | index. The option
// word and the command number are the framework's and are passed as they stand.
constexpr ZMDeclarationWord kMenuText = 0x3E800001;
constexpr ZMDeclarationWord kMenuOptions = 0x9E000000;
constexpr ZMDeclarationWord kMenuCommand = 10100;

#define TOLVANE_NOTIFIER(type) ZM_DECL_NOTIFIER, Word(kPluginName), Word(type), ZM_DECL_TERMINATOR

const ZMDeclarationWord kDeclarations[] = {
    ZM_DECL_SUITES, Word(kPluginName), ZM_SUITE_LIST_FORMAT, ZM_SUITE_LIST_LEVEL,
    Word(kRequiredSuites),
    ZM_DECL_MENU_ITEM, Word(ZM_MENU_GROUP_TOOL_PALETTES), kMenuText, 0, kMenuOptions,
    kMenuCommand, ZM_DECL_TERMINATOR,
    TOLVANE_NOTIFIER(ZM_NOTIFIER_ART_SELECTION_CHANGED),
    TOLVANE_NOTIFIER(ZM_NOTIFIER_ART_PROPERTIES_CHANGED),
    TOLVANE_NOTIFIER(ZM_NOTIFIER_DOCUMENT_CHANGED),
    TOLVANE_NOTIFIER(ZM_NOTIFIER_DOCUMENT_ABOUT_TO_CLOSE),
    TOLVANE_NOTIFIER(ZM_NOTIFIER_DOCUMENT_CLOSED),
    TOLVANE_NOTIFIER(ZM_NOTIFIER_DOCUMENT_OPENED),
    TOLVANE_NOTIFIER(ZM_NOTIFIER_DOCUMENT_PROFILES_CHANGED),
    TOLVANE_NOTIFIER(ZM_NOTIFIER_APPLICATION_STARTED),
    TOLVANE_NOTIFIER(ZM_NOTIFIER_PREFERENCE_CHANGED),
    TOLVANE_NOTIFIER(ZM_NOTIFIER_AFTER_ART_SETUP),
    TOLVANE_NOTIFIER(ZM_NOTIFIER_CROP_AREA_MODIFIED),
    ZM_DECL_END,
};

#undef TOLVANE_NOTIFIER

const ZMMessageHandler kMessageHandlers[] = {
    {ZM_CODE_STARTUP, StartupHandler},
    {ZM_CODE_SHUTDOWN, ShutdownHandler},
    {ZM_CODE_RELOAD, ReloadHandler},
    {ZM_CODE_UNLOAD, UnloadHandler},
    {ZM_CODE_MENU, MenuCommandHandler},
    {ZM_CODE_NOTIFY, NotifyHandler},
    {0, nullptr},
};

const ZMResultHandler kResultHandlers[] = {
    {ZM_RESULT_MENU_ITEM, MenuItemCreatedHandler, 0},
    {ZM_RESULT_NOTIFIER, NotifierCreatedHandler, 0},
    {0, nullptr, 0},
};

}  // namespace

// Writable, as the framework expects of the record it is handed.
ZMPluginDescription gPluginDescription = {
    kPluginName, ZM_DESCRIPTION_VERSION, kDeclarations, kMessageHandlers, kResultHandlers, {0, 0},
};

}  // namespace tolvane
