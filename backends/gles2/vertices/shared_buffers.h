// The buffers of a share group. Any thread.
#pragma once

#include "names/name_table.h"
#include "vertices/stream_buffer.h"

#include <mutex>

class SharedBuffers {
public:
    NameTable names;

    // Adds the chunks of a destroyed context: a live one has to delete them.
    void abandon(std::vector<StreamBuffer::Chunk> chunks);
    // With the host context current.
    void deleteAbandoned();

private:
    std::mutex m_mutex;
    std::vector<StreamBuffer::Chunk> m_abandoned; // guarded by m_mutex
};
