// The EGL images of a share group: which textures share an image's storage, and the storages that are no longer used.
// Any thread.
#pragma once

#include "common/pending_list.h"
#include "common/shared_map.h"

#include <cstdint>
#include <mutex>
#include <unordered_set>
#include <vector>

struct ImageSibling {
    uint64_t image;
    bool isMutable; // for the application: gets a storage of its own when another image is specified
};

class SharedImages {
public:
    // Registers a new image of this number.
    void begin(uint64_t image);
    // The image is destroyed; its siblings remain. storage: the host's texture.
    void end(uint64_t image, GLuint storage);
    // The storages of destroyed images, for the caller to delete.
    [[nodiscard]] std::vector<GLuint> takeEnded() { return m_ended.take(); }
    // Whether the texture, by the host's name, is a sibling of an existing image.
    [[nodiscard]] bool isTaken(GLuint texture) const;

    SharedMap<ImageSibling> siblings; // by the host's name

private:
    mutable std::mutex m_mutex;
    std::unordered_set<uint64_t> m_live; // guarded by m_mutex
    PendingList<GLuint> m_ended;
};
