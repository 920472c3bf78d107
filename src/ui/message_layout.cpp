// Checks the wire format: GUIs are built separately from the library, so a moved field must not compile.
#include <cstddef>

#include "zelvane/messages.h"

#define AT(offset, structure, field) static_assert(offsetof(structure, field) == offset)

static_assert(sizeof(zvMessage) == ZV_MESSAGE_SIZE);
AT(0, zvMessageHeader, frameStamp);
AT(8, zvMessageHeader, type);
AT(12, zvProcessHello, processNumber);
AT(12, zvTextMessage, text);
AT(12, zvBackEndText, values);
AT(20, zvBackEndText, text);
AT(12, zvBackEndRecord, values);
AT(28, zvBackEndRecord, text);
AT(12, zvBackEndNamedText, value);
AT(16, zvBackEndNamedText, name);
AT(80, zvBackEndNamedText, text);
AT(16, zvBackEndLists, key);
AT(24, zvBackEndLists, number);
AT(28, zvBackEndLists, firstValues);
AT(36, zvBackEndLists, firstLists[0]);
AT(2084, zvBackEndLists, firstLists[1]);
AT(4132, zvBackEndLists, firstLists[2]);
AT(6180, zvBackEndLists, lastValues);
AT(6188, zvBackEndLists, lastList);
AT(12, zvSystemReportGlVersion, glVersion);
AT(12, zvSystemReportExtension, extension);
AT(16, zvSystemReportExtension, isAvailable);
AT(12, zvSystemReportFeature, name);
AT(524, zvSystemReportFeature, isAvailable);
AT(12, zvSystemReportFeatureAlternative, name);
AT(524, zvSystemReportFeatureAlternative, minVersion);
AT(528, zvSystemReportFeatureAlternative, extensions);
AT(12, zvSystemReportEsRequirement, section);
AT(16, zvSystemReportEsRequirement, feature);
AT(12, zvSystemReportEsExtensionRequirement, esExtension);
AT(16, zvSystemReportEsExtensionRequirement, feature);
static_assert(sizeof(zvBackEndLists) == ZV_MESSAGE_SIZE && sizeof(zvSystemReportFeatureAlternative) == ZV_MESSAGE_SIZE);
