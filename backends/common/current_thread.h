// The calling thread's current context, as libEGL.so.1 records it.
#pragma once

#include <zelvane/back_end.h>

// The calling thread's record; an empty one before the thread's first bind. Two loads find the current context, since
// every draw needs it.
extern constinit thread_local const zvThread *currentThread __attribute__((tls_model("initial-exec")));

// Called at each bind.
void noteCurrentThread();
