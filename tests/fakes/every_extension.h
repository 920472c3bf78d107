// All names of the extension catalogue, as a host would list them.
#pragma once

constexpr const char *everyExtension =
#define HOST_EXTENSION(value, name) name " "
#include "capability/data/host_extensions.def"
#undef HOST_EXTENSION
    ;
