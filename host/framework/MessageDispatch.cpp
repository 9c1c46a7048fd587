#include "framework/MessageDispatch.hpp"

#include "framework/Declarations.hpp"
#include "suites/SuiteGuard.hpp"

#include <zelmora/PXMBasicSuite.h>
#include <zelmora/ZMMenuSuite.h>
#include <zelmora/ZMNotifierSuite.h>
#include <zelmora/ZMPluginMain.h>

#include <array>
#include <cstring>

namespace zm::host {

namespace {

void Check(ZMErr error) {
    if (error != ZM_ERR_NONE) {
        throw HostError(error);
    }
}

// A suite the framework uses for its own work, acquired and given back like any other.
template <typename Table>
class BorrowedSuite {
public:
    BorrowedSuite(Runtime& runtime, const char* name, int32_t version)
        : runtime_(runtime), name_(name), version_(version) {
        const void* table = nullptr;
        Check(runtime_.suites.Acquire(name, version, &table));
        table_ = static_cast<const Table*>(table);
    }
    ~BorrowedSuite() { runtime_.suites.Release(name_, version_); }
    BorrowedSuite(const BorrowedSuite&) = delete;
    BorrowedSuite& operator=(const BorrowedSuite&) = delete;
    const Table* operator->() const { return table_; }

private:
    Runtime& runtime_;
    const char* name_;
    int32_t version_;
    const Table* table_ = nullptr;
};

struct Delivery {
    Runtime& runtime;
    LoadedPlugin& plugin;
    const ZMPluginDescription& description;
    ZMMessageRecord& message;
};

// A plug-in that declares no handler for a code has nothing to do for it.
ZMErr CallHandler(const Delivery& delivery, intptr_t code) {
    for (const ZMMessageHandler* entry = delivery.description.handlers;
         entry != nullptr && entry->code != 0; ++entry) {
        if (entry->code == code) {
            return entry->handler(&delivery.message);
        }
    }
    return ZM_ERR_NONE;
}

ZMErr DeliverResult(const Delivery& delivery, intptr_t kind, void* handle, const char* name) {
    for (const ZMResultHandler* entry = delivery.description.results;
         entry != nullptr && entry->kind != 0; ++entry) {
        if (entry->kind == kind) {
            ZMRegistrationMessage result{};
            result.d = delivery.message;
            result.kind = kind;
            result.handle = handle;
            result.name = name;
            ZMErr error = entry->handler(&result);
            delivery.message.globals = result.d.globals;
            return error;
        }
    }
    return ZM_ERR_NONE;
}

Declarations Read(const Delivery& delivery) {
    return ReadDeclarations(delivery.description.declarations);
}

// On failure the rows already acquired are given back, so nothing is half held.
void AcquireDeclaredSuites(const Delivery& delivery, const Declarations& declarations) {
    FrameworkState& state = delivery.plugin.framework;
    if (state.heldSuites != nullptr) {
        return;
    }
    const ZMSuiteDeclaration* suites = declarations.suites;
    if (suites == nullptr) {
        return;
    }
    for (const ZMSuiteDeclaration* row = suites; row->kind != ZM_SUITE_KIND_END; ++row) {
        const void* table = nullptr;
        ZMErr error = row->name == nullptr
                          ? ZM_ERR_BAD_DECLARATION
                          : delivery.runtime.suites.Acquire(
                                row->name, static_cast<int32_t>(row->version), &table);
        if (error != ZM_ERR_NONE) {
            for (const ZMSuiteDeclaration* done = suites; done != row; ++done) {
                delivery.runtime.suites.Release(done->name, static_cast<int32_t>(done->version));
                *done->target = nullptr;
            }
            throw HostError(error, std::string("cannot acquire ") +
                                       (row->name ? row->name : "a suite without a name"));
        }
        *row->target = table;
    }
    state.heldSuites = suites;
}

void ReleaseDeclaredSuites(const Delivery& delivery) {
    FrameworkState& state = delivery.plugin.framework;
    for (const ZMSuiteDeclaration* row = state.heldSuites;
         row != nullptr && row->kind != ZM_SUITE_KIND_END; ++row) {
        delivery.runtime.suites.Release(row->name, static_cast<int32_t>(row->version));
        *row->target = nullptr;
    }
    state.heldSuites = nullptr;
}

// Menu items and notifiers of the declarations, each answered by its registration result.
ZMErr RegisterDeclarations(const Delivery& delivery, const Declarations& declarations) {
    Runtime& runtime = delivery.runtime;
    ZMPluginRef ref = delivery.plugin.Ref();
    if (!declarations.menuItems.empty()) {
        BorrowedSuite<ZMMenuSuite> menus(runtime, ZM_MENU_SUITE_NAME, ZM_MENU_SUITE_VERSION);
        BorrowedSuite<PXMBasicSuite> strings(runtime, ZM_PXM_BASIC_SUITE_NAME,
                                             ZM_PXM_BASIC_SUITE_VERSION);
        for (const MenuDeclaration& declared : declarations.menuItems) {
            std::array<char, 256> text{};
            Check(strings->GetIndexedString(ref, declared.stringListId, declared.stringIndex,
                                            text.data(), static_cast<int32_t>(text.size() - 1)));
            ZMMenuItemHandle item = nullptr;
            Check(menus->AddMenuItem(ref, declared.group.c_str(), text.data(), declared.options,
                                     &item));
            if (delivery.plugin.framework.data.menuItem == nullptr) {
                delivery.plugin.framework.data.menuItem = item;
            }
            if (ZMErr error = DeliverResult(delivery, ZM_RESULT_MENU_ITEM, item,
                                            declared.group.c_str());
                error != ZM_ERR_NONE) {
                return error;
            }
        }
    }
    if (!declarations.notifiers.empty()) {
        BorrowedSuite<ZMNotifierSuite> notifiers(runtime, ZM_NOTIFIER_SUITE_NAME,
                                                 ZM_NOTIFIER_SUITE_VERSION);
        for (const NotifierDeclaration& declared : declarations.notifiers) {
            ZMNotifierHandle notifier = nullptr;
            Check(notifiers->AddNotifier(ref, declared.owner.c_str(), declared.type.c_str(),
                                         &notifier));
            ++delivery.plugin.framework.data.notifierCount;
            const char* type = runtime.notifiers.Find(notifier)->type.c_str();
            if (ZMErr error = DeliverResult(delivery, ZM_RESULT_NOTIFIER, notifier, type);
                error != ZM_ERR_NONE) {
                return error;
            }
        }
    }
    return ZM_ERR_NONE;
}

// "Reload" is sent whenever the module is loaded. Only a load that hands back a globals
// block is a real reload: the very first load has nothing to restore, and start-up follows.
ZMErr OnReload(const Delivery& delivery) {
    if (delivery.message.globals == nullptr) {
        return ZM_ERR_NONE;
    }
    AcquireDeclaredSuites(delivery, Read(delivery));
    return CallHandler(delivery, ZM_CODE_RELOAD);
}

ZMErr OnUnload(const Delivery& delivery) {
    ZMErr result = CallHandler(delivery, ZM_CODE_UNLOAD);
    ReleaseDeclaredSuites(delivery);
    return result;
}

ZMErr OnStartup(const Delivery& delivery) {
    Declarations declarations = Read(delivery);
    AcquireDeclaredSuites(delivery, declarations);
    if (ZMErr error = CallHandler(delivery, ZM_CODE_STARTUP); error != ZM_ERR_NONE) {
        return error;
    }
    return RegisterDeclarations(delivery, declarations);
}

ZMErr OnShutdown(const Delivery& delivery) {
    ZMErr result = CallHandler(delivery, ZM_CODE_SHUTDOWN);
    ReleaseDeclaredSuites(delivery);
    return result;
}

ZMErr OnMenu(const Delivery& delivery) { return CallHandler(delivery, ZM_CODE_MENU); }
ZMErr OnNotify(const Delivery& delivery) { return CallHandler(delivery, ZM_CODE_NOTIFY); }

struct Route {
    const char* caller;
    const char* selector;
    ZMErr (*handle)(const Delivery&);
};

constexpr std::array<Route, 6> kRoutes = {{
    {ZM_CALLER_ACCESS, ZM_SELECTOR_RELOAD, OnReload},
    {ZM_CALLER_ACCESS, ZM_SELECTOR_UNLOAD, OnUnload},
    {ZM_CALLER_PLUGIN, ZM_SELECTOR_STARTUP, OnStartup},
    {ZM_CALLER_PLUGIN, ZM_SELECTOR_SHUTDOWN, OnShutdown},
    {ZM_CALLER_MENU, ZM_SELECTOR_GO_MENU, OnMenu},
    {ZM_CALLER_NOTIFIER, ZM_SELECTOR_NOTIFY, OnNotify},
}};

}  // namespace

ZMErr ZM_API DispatchMessage(const ZMPluginDescription* plugin, const char* caller,
                             const char* selector, void* message) {
    ZMErr result = ZM_ERR_NONE;
    ZMErr guard = GuardSuiteCall(ZM_LMB_BASIC_SUITE_NAME, 0, [&](Runtime& runtime) {
        auto* record = static_cast<ZMMessageRecord*>(message);
        bool signed_ = record != nullptr && record->signature == uint32_t(ZM_MESSAGE_SIGNATURE);
        runtime.dispatches.push_back(
            {caller ? caller : "", selector ? selector : "", signed_});
        RequireArguments(plugin, caller, selector, record);
        if (!signed_) {
            throw HostError(ZM_ERR_BAD_MESSAGE, "message without the host's signature");
        }
        LoadedPlugin* loaded = runtime.plugins.Find(record->self);
        if (loaded == nullptr) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "message for an unknown plug-in");
        }
        loaded->framework.description = plugin;
        loaded->framework.data.plugin = loaded->Ref();
        for (const Route& route : kRoutes) {
            if (std::strcmp(route.caller, caller) == 0 &&
                std::strcmp(route.selector, selector) == 0) {
                result = route.handle(Delivery{runtime, *loaded, *plugin, *record});
                return;
            }
        }
        throw HostError(ZM_ERR_BAD_SELECTOR, "unknown caller and selector");
    });
    return guard != ZM_ERR_NONE ? guard : result;
}

}  // namespace zm::host
