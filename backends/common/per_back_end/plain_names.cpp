#include "common/per_back_end/plain_names.h"

#include "common/find_variable.h"
#include "common/per_back_end/entry_lookup.h"

#include <zelvane/back_end.h>

// Weak, since the libEGL.so.1 of a test lacks this function.
extern "C" __attribute__((weak)) void (*eglGetProcAddress(const char *name))();

namespace {

// Null without a journal.
zvRecordedFunctionType findRecorder() {
    if (!findVariable("ZELVANE_JOURNAL") || !eglGetProcAddress) return nullptr;
    return reinterpret_cast<zvRecordedFunctionType>(eglGetProcAddress("zvRecordedFunction"));
}

} // namespace

void *resolvePlainName(const char *name) {
    static const zvRecordedFunctionType recorder = findRecorder();
    void *const function = resolveExport(name);
    return recorder ? recorder(name, function) : function;
}
