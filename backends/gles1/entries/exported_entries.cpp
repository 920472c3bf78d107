// The exported names of OpenGL ES 1.1 and its extensions, for programs that link them. Each looks its function up at
// its first call; later calls cost one load and a jump. Without a host OpenGL they do nothing and return 0.
#include "common/per_back_end/plain_names.h"
#include "es_gl.h"

#include <zelvane/back_end.h>

#define ENTRY(result, name, parameters, arguments, extension)                                                          \
    extern "C" ZV_EXPORT result GL_APIENTRY name parameters {                                                          \
        static const auto function = reinterpret_cast<result(GL_APIENTRY *) parameters>(resolvePlainName(#name));      \
        return function ? function arguments : static_cast<result>(0);                                                 \
    }
#include "data/entries.def"
#include "data/own_entries.def"
#undef ENTRY
