// The data that libEGL passes to the libGL.so.1 of desktop programs, so that its functions follow the current context
// of OpenGL ES. The library that is loaded second passes it on.
#pragma once

struct LibGlLink {
    using Function = void (*)();
    using FindEntry = Function (*)(const char *name);

    // The calling thread's word that is not null while a context of OpenGL ES is current. It is in libEGL's static
    // thread-local storage: at the same offset from the thread pointer in all threads.
    const void *context;
    // The entry of a GL name, which calls the function of the current context. Null if there are too many names. Any
    // thread.
    FindEntry findEntry;
};

// The directory of libGL.so.1, relative to that of libEGL.
inline constexpr char libGlFromLibEgl[] = "/desktop/libGL.so.1";

extern "C" {
// Exported by libEGL.
using DescribeToLibGl = void(LibGlLink *link);
// Exported by libGL.so.1.
using FollowLibEgl = void(const LibGlLink *link);
}
