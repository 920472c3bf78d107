/*
 * Builders of the records that back ends send with zvPostFrameMessage, one per type.
 *
 * Conventions: a builder returns a complete record, in which all bytes after the payload are zero; its frameStamp is
 * ZV_NO_FRAME, which zvPostFrameMessage replaces. Texts are null-terminated and must not be null pointers. Texts and
 * lists that do not fit their field are truncated. The arguments are not retained. Any thread.
 */
#ifndef ZELVANE_MESSAGE_BUILDERS_H
#define ZELVANE_MESSAGE_BUILDERS_H

#include <stddef.h>
#include <string.h>

#include "messages.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The values of a list of ZV_BACK_END_LISTS. values may be null when count is 0. */
typedef struct zvList {
    const uint32_t *values;
    size_t count;
} zvList;

/* The payload of ZV_BACK_END_LISTS. */
typedef struct zvLists {
    uint64_t key;
    int32_t number;
    uint32_t firstValues[2];
    zvList firstLists[3];
    uint32_t lastValues[2];
    zvList lastList;
} zvLists;

/* Returns a record of the type without a payload. */
static inline zvMessage zvBuildEmpty(zvMessageType type) {
    zvMessage message;
    memset(&message, 0, sizeof message);
    message.header.frameStamp = ZV_NO_FRAME;
    message.header.type = type;
    return message;
}

/* Copies a text into a field of size bytes, which must be zero. */
static inline void zvCopyText(char *field, size_t size, const char *text) {
    const size_t length = strlen(text);
    memcpy(field, text, length < size ? length : size - 1);
}

/* Copies a list into a field of size entries, which must be zero. */

static inline void zvCopyList(uint32_t *field, size_t size, zvList list) {
    const size_t count = list.count < size ? list.count : size - 1;
    if (count > 0) memcpy(field, list.values, count * sizeof *field);
}

/* level: ZV_LOG_INFO, ZV_LOG_WARNING or ZV_LOG_ERROR. Prints nothing. */
static inline zvMessage zvBuildLogLine(zvMessageType level, const char *text) {
    zvMessage message = zvBuildEmpty(level);
    zvCopyText(message.text.text, sizeof message.text.text, text);
    return message;
}

static inline zvMessage zvBuildBackEndText(uint32_t first, uint32_t second, const char *text) {
    zvMessage message = zvBuildEmpty(ZV_BACK_END_TEXT);
    message.backEndText.values[0] = first;
    message.backEndText.values[1] = second;
    zvCopyText(message.backEndText.text, sizeof message.backEndText.text, text);
    return message;
}

static inline zvMessage zvBuildBackEndMarker(void) {
    return zvBuildEmpty(ZV_BACK_END_MARKER);
}

static inline zvMessage zvBuildBackEndRecord(const uint32_t values[4], const char *text) {
    zvMessage message = zvBuildEmpty(ZV_BACK_END_RECORD);
    memcpy(message.backEndRecord.values, values, sizeof message.backEndRecord.values);
    zvCopyText(message.backEndRecord.text, sizeof message.backEndRecord.text, text);
    return message;
}

static inline zvMessage zvBuildBackEndNamedText(uint32_t value, const char *name, const char *text) {
    zvMessage message = zvBuildEmpty(ZV_BACK_END_NAMED_TEXT);
    message.backEndNamedText.value = value;
    zvCopyText(message.backEndNamedText.name, sizeof message.backEndNamedText.name, name);
    zvCopyText(message.backEndNamedText.text, sizeof message.backEndNamedText.text, text);
    return message;
}

static inline zvMessage zvBuildBackEndLists(const zvLists *lists) {
    zvMessage message = zvBuildEmpty(ZV_BACK_END_LISTS);
    zvBackEndLists *const payload = &message.backEndLists;
    size_t index;
    payload->key = lists->key;
    payload->number = lists->number;
    memcpy(payload->firstValues, lists->firstValues, sizeof payload->firstValues);
    for (index = 0; index < 3; ++index)
        zvCopyList(payload->firstLists[index], ZV_MESSAGE_LIST_SIZE, lists->firstLists[index]);
    memcpy(payload->lastValues, lists->lastValues, sizeof payload->lastValues);
    zvCopyList(payload->lastList, ZV_MESSAGE_LIST_SIZE, lists->lastList);
    return message;
}

#ifdef __cplusplus
}
#endif

#endif
