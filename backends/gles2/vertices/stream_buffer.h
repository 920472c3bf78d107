// A ring in a buffer of the host: what a draw reads of the application's memory goes in behind what earlier draws still
// read. When the ring is full, the host gives it a new memory. Used on one context's thread.
#pragma once

#include "names/name_table.h"

#include <cstddef>
#include <span>
#include <vector>

struct StreamBlock {
    std::span<const std::byte> bytes;
    // The least offset that the block may get.
    size_t leastOffset = 0;
    // Where it lies in the buffer; the result.
    size_t offset = 0;
};

class StreamBuffer {
public:
    explicit StreamBuffer(GLenum target) : m_target(target) {}

    // The host's name; 0 before the first use.
    [[nodiscard]] GLuint name() const { return m_name; }

    // Binds the ring to its target.
    void bind(NameTable &names);
    // Copies the blocks into the bound ring and tells where they lie. False when the host has no memory.
    [[nodiscard]] bool put(std::span<StreamBlock> blocks);

private:
    const GLenum m_target;
    GLuint m_name = 0;
    size_t m_capacity = 0;
    size_t m_end = 0; // of what is in use
};
