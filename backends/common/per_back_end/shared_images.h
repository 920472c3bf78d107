// The EGL images of a share group: which textures share an image's storage, and the storages that nobody needs any
// more. Any thread.
#pragma once

#include "common/shared_map.h"

#include <cstdint>
#include <mutex>
#include <unordered_set>
#include <vector>

struct ImageSibling {
    uint64_t image;
    bool isMutable; // to the application: it takes a storage of its own when it gets another image
};

class SharedImages {
public:
    // An image of this number is there from now on.
    void begin(uint64_t image);
    // The image is no more; its siblings go on. storage: the host's texture.
    void end(uint64_t image, GLuint storage);
    // The storages of images that have ended, for the caller to delete.
    [[nodiscard]] std::vector<GLuint> takeEnded();
    // Whether the texture, by the host's name, is a sibling of an image that is still there.
    [[nodiscard]] bool isTaken(GLuint texture) const;

    SharedMap<ImageSibling> siblings; // by the host's name

private:
    mutable std::mutex m_mutex; // guards what is below
    std::unordered_set<uint64_t> m_live;
    std::vector<GLuint> m_ended;
};
