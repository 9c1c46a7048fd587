#pragma once
/* Fixed-width types, opaque handles and error codes shared by every suite. */
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Calling convention of every suite entry and of PluginMain. Empty on the
   System V ABI; kept so that a port to another ABI changes one line. */
#define ZM_API

/* A four-character code as one 32-bit number, first character most significant. */
#define ZM_FOUR_CHAR(a, b, c, d) \
    ((int32_t)(((uint32_t)(a) << 24) | ((uint32_t)(b) << 16) | ((uint32_t)(c) << 8) | (uint32_t)(d)))

/* 0 is success; anything else is a failure code, usually a four-character code. */
typedef int32_t ZMErr;

#define ZM_ERR_NONE 0
/* Codes a plug-in may return. */
#define ZM_ERR_NO_MEMORY       ZM_FOUR_CHAR('!', 'M', 'E', 'M')
#define ZM_ERR_CANT            ZM_FOUR_CHAR('C', 'A', 'N', 'T')
#define ZM_ERR_PARAMETER       ZM_FOUR_CHAR('P', 'A', 'R', 'M')
/* Codes the host returns. */
#define ZM_ERR_NO_DOCUMENT     ZM_FOUR_CHAR('D', 'O', 'C', '?')
#define ZM_ERR_SUITE_NOT_FOUND ZM_FOUR_CHAR('S', 'U', 'I', '?')
#define ZM_ERR_BAD_ARGUMENT    ZM_FOUR_CHAR('B', 'A', 'R', 'G')
#define ZM_ERR_BAD_MESSAGE     ZM_FOUR_CHAR('B', 'M', 'S', 'G')
#define ZM_ERR_BAD_SELECTOR    ZM_FOUR_CHAR('S', 'E', 'L', '?')
#define ZM_ERR_BAD_DECLARATION ZM_FOUR_CHAR('D', 'E', 'C', 'L')
#define ZM_ERR_NOT_FOUND       ZM_FOUR_CHAR('N', 'F', 'N', 'D')
#define ZM_ERR_BAD_ENCODING    ZM_FOUR_CHAR('E', 'N', 'C', '?')
#define ZM_ERR_BUFFER_TOO_SMALL ZM_FOUR_CHAR('B', 'U', 'F', '!')
#define ZM_ERR_NOT_STARTED     ZM_FOUR_CHAR('S', 'T', 'R', '?')
#define ZM_ERR_WRONG_TYPE      ZM_FOUR_CHAR('T', 'Y', 'P', '?') /* a value of another type is stored */
#define ZM_ERR_USER_CANCELED   ZM_FOUR_CHAR('S', 'T', 'O', 'P') /* the user cancelled a dialog */
#define ZM_ERR_INTERNAL        ZM_FOUR_CHAR('I', 'N', 'T', '!')

/* Opaque handles: pointers to incomplete structs, so the compiler keeps them apart. */
typedef struct ZMPluginOpaque *ZMPluginRef;
typedef struct ZMMenuItemOpaque *ZMMenuItemHandle;
typedef struct ZMMenuGroupOpaque *ZMMenuGroupHandle;
typedef struct ZMNotifierOpaque *ZMNotifierHandle;
typedef struct ZMAppContextOpaque *ZMAppContext;
typedef struct ZMUnicodeStringOpaque *ZMUnicodeString;

#ifdef __cplusplus
}
#endif
