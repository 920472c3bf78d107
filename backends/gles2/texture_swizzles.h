// The swizzles of textures whose format the host lacks: what the format needs, under what the application set itself.
#pragma once

#include "texture_formats.h"

#include <atomic>
#include <mutex>
#include <optional>
#include <unordered_map>

// Those of a share group's textures, by the host's name; a context has one of its own for the textures of name 0, by
// target. Holds only textures that had such a format once: the host's own swizzle is the application's for the others.
// Any thread.
class TextureSwizzles {
public:
    struct Entry {
        Swizzle ofFormat;
        Swizzle ofApplication;
    };

    [[nodiscard]] bool isEmpty() const { return m_isEmpty.load(std::memory_order_relaxed); }
    [[nodiscard]] std::optional<Entry> find(GLuint key) const;
    void set(GLuint key, const Entry &entry);
    void remove(GLuint key);

private:
    mutable std::mutex m_mutex;
    std::unordered_map<GLuint, Entry> m_entries; // guarded by m_mutex
    std::atomic<bool> m_isEmpty = true;
};

class EsContext;

// The texture that is bound to the target has got this swizzle with its image's format.
void setFormatSwizzle(EsContext &context, GLenum target, const Swizzle &swizzle);

// That of the format of the texture that is bound to the target.
[[nodiscard]] Swizzle formatSwizzle(EsContext &context, GLenum target);
