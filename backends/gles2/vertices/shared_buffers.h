// The buffers of a share group. Any thread.
#pragma once

#include "common/pending_list.h"
#include "names/name_table.h"
#include "vertices/stream_buffer.h"

class SharedBuffers {
public:
    NameTable names;

    // Adds the chunks of a destroyed context: a live one has to delete them.
    void abandon(const std::vector<StreamBuffer::Chunk> &chunks);
    // With the host context current.
    void deleteAbandoned();

private:
    PendingList<StreamBuffer::Chunk> m_abandoned;
};
