// The exported names of OpenGL ES 2.0 to 3.2, for programs that link them. Each looks its function up at its first
// call; later calls cost one load and a jump. Without a host OpenGL they do nothing and return 0.
#include "common/per_back_end/plain_names.h"

#include <zelvane/back_end.h>

#include "es_gl.h"

#define EXPORT(result, name, parameters, arguments)                                                                    \
    extern "C" ZV_EXPORT result GL_APIENTRY name parameters {                                                          \
        static const auto function = reinterpret_cast<decltype(&::name)>(resolvePlainName(#name));                     \
        return function ? function arguments : static_cast<result>(0);                                                 \
    }
#include "data/exported_entries.def"
#undef EXPORT
