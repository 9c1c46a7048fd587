#pragma once
/* Subscriptions to the host's notifications. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_NOTIFIER_SUITE_NAME    "ZM Notifier Suite"
#define ZM_NOTIFIER_SUITE_VERSION 4

/* Notifier type names the host sends. */
#define ZM_NOTIFIER_ART_SELECTION_CHANGED  "ZM Art Selection Changed Notifier"
#define ZM_NOTIFIER_ART_PROPERTIES_CHANGED "ZM Art Properties Changed Notifier"
#define ZM_NOTIFIER_DOCUMENT_CHANGED       "ZM Document Changed Notifier"
#define ZM_NOTIFIER_DOCUMENT_ABOUT_TO_CLOSE "ZM Document About To Close Notifier"
#define ZM_NOTIFIER_DOCUMENT_CLOSED        "ZM Document Closed Notifier"
#define ZM_NOTIFIER_DOCUMENT_OPENED        "ZM Document Opened Notifier"
#define ZM_NOTIFIER_DOCUMENT_PROFILES_CHANGED "ZM Document Profiles Changed Notifier"
#define ZM_NOTIFIER_APPLICATION_STARTED    "ZM Application Started Notifier"
#define ZM_NOTIFIER_PREFERENCE_CHANGED     "ZM Preference Changed Notifier"
#define ZM_NOTIFIER_AFTER_ART_SETUP        "ZM Command Notifier: After Art Setup"
#define ZM_NOTIFIER_CROP_AREA_MODIFIED     "ZM Document Crop Area Modified Notifier"

typedef struct ZMNotifierSuite {
    /* 0: subscribes the plug-in to notifications of type. The handle lives until the plug-in
       is unloaded. ZM_ERR_BAD_ARGUMENT for an empty type. */
    ZMErr(ZM_API *AddNotifier)(ZMPluginRef plugin, const char *owner, const char *type,
                               ZMNotifierHandle *notifier);
    /* 1: an inactive notifier receives nothing. New notifiers are active. */
    ZMErr(ZM_API *SetNotifierActive)(ZMNotifierHandle notifier, int32_t active);
    /* 2 */ ZMErr(ZM_API *IsNotifierActive)(ZMNotifierHandle notifier, int32_t *active);
    /* 3: the type name; the pointer lives as long as the notifier. */
    ZMErr(ZM_API *GetNotifierType)(ZMNotifierHandle notifier, const char **type);
} ZMNotifierSuite;

#ifdef __cplusplus
}
#endif
