// The common part of calls that generate and delete objects, for every kind whose names the application may choose.
// table is null when no context of this back end is current; the host raises the errors of malformed calls.
#pragma once

#include "names/name_table.h"

using DeleteNames = void(GLsizei, const GLuint *);

inline void generateNames(NameTable *table, GLsizei n, GLuint *names, NameTable::Generate *host) {
    if (!table || n < 0 || !names) return host(n, names);
    table->generate(n, names, host);
}

// forget: called with the host's name of each deleted object, before the host deletes it.
template <typename Forget>
void deleteNames(NameTable *table, GLsizei n, const GLuint *names, DeleteNames *host, Forget forget) {
    if (!table || n < 0 || !names) return host(n, names);
    for (GLsizei index = 0; index < n; ++index) {
        const GLuint hostName = table->remove(names[index]);
        if (hostName == 0) continue;
        forget(hostName);
        host(1, &hostName);
    }
}
