#include "common/render_mode.h"

#include "common/host_library.h"

#include <zelvane/back_end.h>
#include <zelvane/message_builders.h>

namespace {

constexpr unsigned frontAndBack = 0x0408;
constexpr unsigned polygonLine = 0x1B01;
constexpr unsigned polygonFill = 0x1B02;

// Frames before this one have a marker, or no draws.
std::atomic<uint64_t> nextMarkedFrame = 0;

void setPolygonMode(unsigned mode) {
    using PolygonMode = void (*)(unsigned face, unsigned mode);
    static const auto polygonMode = reinterpret_cast<PolygonMode>(hostFunction("glPolygonMode"));
    if (polygonMode) polygonMode(frontAndBack, mode);
}

void postMarker() {
    const uint64_t frame = zvCurrentFrameNumber();
    uint64_t next = nextMarkedFrame.load(std::memory_order_relaxed);
    // Only one of the threads that draw in a frame sends the marker.
    if (frame < next || !nextMarkedFrame.compare_exchange_strong(next, frame + 1)) return;
    zvPostFrameMessage(zvBuildBackEndMarker());
}

uint64_t toggleWireframe(unsigned isEnabled) {
    setRenderMode(isEnabled != 0);
    return 0;
}

uint64_t setContextWireframe(unsigned isEnabled) {
    if (RenderMode *const mode = currentRenderMode()) mode->wantsWireframe = isEnabled != 0;
    return 0;
}

} // namespace

constinit std::atomic<bool> isWireframeEverywhere = false;

void setRenderMode(uint8_t mode) {
    isWireframeEverywhere.store(mode == 1, std::memory_order_relaxed);
}

void lookForGui(RenderMode &mode) {
    mode.isWatched = zvGuiIsAttached() != 0;
}

void applyRenderMode(RenderMode &mode) {
    const bool isWanted = mode.wantsWireframe || isWireframeEverywhere.load(std::memory_order_relaxed);
    if (isWanted != mode.isWireframe) {
        setPolygonMode(isWanted ? polygonLine : polygonFill);
        mode.isWireframe = isWanted;
    }
    if (mode.isWatched && zvGuiIsAttached()) postMarker();
}

void *findWireframeSwitch(std::string_view name) {
    if (name == "zvToggleWireframe" || name == "Zelvane_ToggleWireframe") {
        return reinterpret_cast<void *>(toggleWireframe);
    }
    return name == "zvSetContextWireframe" ? reinterpret_cast<void *>(setContextWireframe) : nullptr;
}
