/*
 * The record of the GUI link. The library and back ends report to a GUI with it, and a GUI sends commands to the
 * library with it.
 *
 * Conventions: a record is exactly ZV_MESSAGE_SIZE bytes, on the wire and in memory, in the byte order of the machine;
 * both ends are on one machine. It has no length prefix and no checksum, and is always sent whole, even if its payload
 * is shorter. Bytes after the payload are undefined and must not be read. The socket is a Unix domain stream socket,
 * /tmp/Zelvane; the GUI listens. The first record of an application is ZV_PROCESS_HELLO.
 *
 * Every record starts with frameStamp and type, so that `header` can read these two fields of any record. A text field
 * is null-terminated and therefore holds at most its size minus one characters; longer texts are truncated. A list ends
 * with a zero entry and therefore holds at most its size minus one values; further values are lost.
 *
 * Back ends build records with the builders of message_builders.h and send them with zvPostFrameMessage of back_end.h.
 * A back end and its GUI define the meaning of the values of types 3, 4, 5, 9 and 10; the library only forwards them.
 */
#ifndef ZELVANE_MESSAGES_H
#define ZELVANE_MESSAGES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ZV_MESSAGE_SIZE 8240
#define ZV_MESSAGE_TEXT_SIZE 512       /* a text field, in bytes including the terminator */
#define ZV_MESSAGE_NAME_SIZE 64        /* the short text field of ZV_BACK_END_NAMED_TEXT */
#define ZV_MESSAGE_LIST_SIZE 512       /* a list of ZV_BACK_END_LISTS, in entries including the terminator */
#define ZV_MESSAGE_EXTENSION_SIZE 1928 /* the list of ZV_SYSTEM_REPORT_FEATURE_ALTERNATIVE, likewise */

/* frameStamp of a record that belongs to no frame. */
#define ZV_NO_FRAME UINT64_MAX

/* The type of a record. Each comment gives sender, receiver and the member of zvMessage that holds the payload. */
typedef enum zvMessageType {
    ZV_PROCESS_HELLO = 0,                           /* library to GUI: processHello */
    ZV_LINK_STOP = 1,                               /* library to GUI: no payload; nothing follows it */
    ZV_WINDOW_TITLE = 2,                            /* library to GUI: text */
    ZV_BACK_END_TEXT = 3,                           /* back end to GUI: backEndText */
    ZV_BACK_END_MARKER = 4,                         /* back end to GUI: no payload */
    ZV_BACK_END_RECORD = 5,                         /* back end to GUI: backEndRecord */
    ZV_LOG_INFO = 6,                                /* library to GUI: text */
    ZV_LOG_WARNING = 7,                             /* library to GUI: text */
    ZV_LOG_ERROR = 8,                               /* library to GUI: text */
    ZV_BACK_END_NAMED_TEXT = 9,                     /* back end to GUI: backEndNamedText */
    ZV_BACK_END_LISTS = 10,                         /* back end to GUI: backEndLists */
    ZV_GUI_DISCONNECT = 11,                         /* GUI to library: no payload; the library closes the connection */
    ZV_GUI_RENDER_MODE_ON = 12,                     /* GUI to library: no payload */
    ZV_GUI_RENDER_MODE_OFF = 13,                    /* GUI to library: no payload */
    ZV_SYSTEM_REPORT_GL_VERSION = 14,               /* library to GUI: glVersion */
    ZV_SYSTEM_REPORT_EXTENSION = 15,                /* library to GUI: extension */
    ZV_SYSTEM_REPORT_FEATURE = 16,                  /* library to GUI: feature */
    ZV_SYSTEM_REPORT_FEATURE_ALTERNATIVE = 17,      /* library to GUI: featureAlternative */
    ZV_SYSTEM_REPORT_ES_REQUIREMENT = 18,           /* library to GUI: esRequirement */
    ZV_SYSTEM_REPORT_ES_EXTENSION_REQUIREMENT = 19, /* library to GUI: esExtensionRequirement */
    ZV_SYSTEM_REPORT_END = 20                       /* library to GUI: no payload */
} zvMessageType;

/* The first fields of every record. */
#define ZV_MESSAGE_HEADER                                                                                              \
    uint64_t frameStamp; /* number of the frame, or ZV_NO_FRAME; 0 in types 14 to 19 */                                \
    uint32_t type;       /* a zvMessageType; a receiver ignores unknown values */

typedef struct zvMessageHeader {
    ZV_MESSAGE_HEADER
} zvMessageHeader;

typedef struct zvProcessHello {
    ZV_MESSAGE_HEADER
    int32_t processNumber; /* as returned by getpid() */
} zvProcessHello;

/* A window title or a log line, in UTF-8. */
typedef struct zvTextMessage {
    ZV_MESSAGE_HEADER
    char text[ZV_MESSAGE_TEXT_SIZE];
} zvTextMessage;

typedef struct zvBackEndText {
    ZV_MESSAGE_HEADER
    uint32_t values[2];
    char text[ZV_MESSAGE_TEXT_SIZE];
} zvBackEndText;

typedef struct zvBackEndRecord {
    ZV_MESSAGE_HEADER
    uint32_t values[4];
    char text[ZV_MESSAGE_TEXT_SIZE];
} zvBackEndRecord;

typedef struct zvBackEndNamedText {
    ZV_MESSAGE_HEADER
    uint32_t value;
    char name[ZV_MESSAGE_NAME_SIZE];
    char text[ZV_MESSAGE_TEXT_SIZE];
} zvBackEndNamedText;

/* The largest payload: it determines the size of the record. */
typedef struct zvBackEndLists {
    ZV_MESSAGE_HEADER
    uint32_t reserved; /* must not be read */
    uint64_t key;
    int32_t number; /* the one signed value */
    uint32_t firstValues[2];
    uint32_t firstLists[3][ZV_MESSAGE_LIST_SIZE];
    uint32_t lastValues[2];
    uint32_t lastList[ZV_MESSAGE_LIST_SIZE];
} zvBackEndLists;

typedef struct zvSystemReportGlVersion {
    ZV_MESSAGE_HEADER
    uint32_t glVersion; /* of the host's OpenGL: 1 to 19 for 1.0 to 4.6, 20 for any other, 0 if it reports none */
} zvSystemReportGlVersion;

typedef struct zvSystemReportExtension {
    ZV_MESSAGE_HEADER
    uint32_t extension;   /* number of a host extension, from 1 */
    uint32_t isAvailable; /* 1 if the host has it, otherwise 0 */
} zvSystemReportExtension;

typedef struct zvSystemReportFeature {
    ZV_MESSAGE_HEADER
    char name[ZV_MESSAGE_TEXT_SIZE];
    uint32_t isAvailable; /* 1 if the host provides it, otherwise 0 */
} zvSystemReportFeature;

/* One way to provide the feature of that name, which an earlier ZV_SYSTEM_REPORT_FEATURE has reported. */
typedef struct zvSystemReportFeatureAlternative {
    ZV_MESSAGE_HEADER
    char name[ZV_MESSAGE_TEXT_SIZE];
    uint32_t minVersion;                            /* required host OpenGL version, as above */
    uint32_t extensions[ZV_MESSAGE_EXTENSION_SIZE]; /* additionally required host extensions */

} zvSystemReportFeatureAlternative;

typedef struct zvSystemReportEsRequirement {
    ZV_MESSAGE_HEADER
    int32_t section; /* 0 base support, 2 ES 2.0, 3 ES 3.0, 4 ES 3.1, 5 ES 3.2 */
    char feature[ZV_MESSAGE_TEXT_SIZE];
} zvSystemReportEsRequirement;

typedef struct zvSystemReportEsExtensionRequirement {
    ZV_MESSAGE_HEADER
    uint32_t esExtension; /* number of an ES extension */
    char feature[ZV_MESSAGE_TEXT_SIZE];
} zvSystemReportEsExtensionRequirement;

typedef union zvMessage {
    uint8_t bytes[ZV_MESSAGE_SIZE];
    zvMessageHeader header;
    zvProcessHello processHello;
    zvTextMessage text;
    zvBackEndText backEndText;
    zvBackEndRecord backEndRecord;
    zvBackEndNamedText backEndNamedText;
    zvBackEndLists backEndLists;
    zvSystemReportGlVersion glVersion;
    zvSystemReportExtension extension;
    zvSystemReportFeature feature;
    zvSystemReportFeatureAlternative featureAlternative;
    zvSystemReportEsRequirement esRequirement;
    zvSystemReportEsExtensionRequirement esExtensionRequirement;
} zvMessage;

#ifdef __cplusplus
}
#endif

#endif
