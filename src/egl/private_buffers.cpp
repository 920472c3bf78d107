#include "egl/private_buffers.h"

#include <mutex>
#include <utility>
#include <vector>

#include "host/host_surface.h"

namespace egl {

namespace {

struct Left {
    std::mutex mutex;
    std::vector<std::shared_ptr<glove::ISurface>> buffers; // guarded by mutex
};

// Never destroyed: contexts may end after static destruction has begun.
Left &left() {
    static Left &instance = *new Left;
    return instance;
}

} // namespace

std::shared_ptr<glove::ISurface> takePrivateBuffer() {
    {
        const std::lock_guard lock(left().mutex);
        auto &buffers = left().buffers;
        if (!buffers.empty()) {
            auto buffer = std::move(buffers.back());
            buffers.pop_back();
            return buffer;
        }
    }
    return host::createHostPBufferSurface(privateBufferAttributes);
}

void leavePrivateBuffer(std::shared_ptr<glove::ISurface> buffer) {
    // A buffer that the host failed to create is not reused: the next context tries again.
    if (!buffer || buffer->nativeHandle().isNull()) return;
    const std::lock_guard lock(left().mutex);
    left().buffers.push_back(std::move(buffer));
}

} // namespace egl
