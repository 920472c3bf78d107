// The buffers of a share group. Any thread.
#pragma once

#include "names/name_table.h"

#include <mutex>
#include <span>
#include <vector>

class SharedBuffers {
public:
    NameTable names;

    // Buffers of a context that has ended, by the host's names: one that still lives has to delete them.
    void abandon(std::span<const GLuint> buffers);
    // With the host context current.
    void deleteAbandoned();

private:
    std::mutex m_mutex;
    std::vector<GLuint> m_abandoned; // guarded by m_mutex
};
