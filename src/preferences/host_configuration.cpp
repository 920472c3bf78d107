#include "preferences/host_configuration.h"

#include <dlfcn.h>

uint32_t getHostConfiguration() {
    static const uint32_t configuration = [] {
        const void *word = dlsym(RTLD_DEFAULT, "ZelvaneConfiguration");
        return word ? *static_cast<const uint32_t *>(word) : 0;
    }();
    return configuration;
}
