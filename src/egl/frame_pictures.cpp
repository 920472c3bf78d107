#include "egl/frame_pictures.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <mutex>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

#include <nlohmann/json.hpp>

#include "egl/state.h"
#include "egl/surface.h"
#include "foundation/environment.h"
#include "foundation/gl_types.h"
#include "journal/journal.h"

namespace egl::frame_pictures {

namespace {

using Clock = std::chrono::steady_clock;

struct HostFunctions {
    void (*getIntegerv)(uint32_t, int32_t *);
    void (*pixelStorei)(uint32_t, int32_t);
    void (*bindBuffer)(uint32_t, uint32_t);
    void (*bindFramebuffer)(uint32_t, uint32_t);
    void (*readPixels)(int32_t, int32_t, int32_t, int32_t, uint32_t, uint32_t, void *);
    uint32_t (*getError)();

    explicit HostFunctions(const DynamicLibrary &library) {
        find(library, getIntegerv, "glGetIntegerv");
        find(library, pixelStorei, "glPixelStorei");
        find(library, bindBuffer, "glBindBuffer");
        find(library, bindFramebuffer, "glBindFramebuffer");
        find(library, readPixels, "glReadPixels");
        find(library, getError, "glGetError");
    }
    [[nodiscard]] bool areThere() const {
        return getIntegerv && pixelStorei && bindBuffer && bindFramebuffer && readPixels && getError;
    }

private:
    template <typename Type>
    static void find(const DynamicLibrary &library, Type &function, const char *name) {
        function = reinterpret_cast<Type>(library.getSymbol(name));
    }
};

// The state that a read of the surface depends on; the destructor restores it.
class ReadState {
public:
    explicit ReadState(const HostFunctions &host) : m_host(host) {
        for (size_t i = 0; i < std::size(stores); ++i)
            host.getIntegerv(stores[i], &m_stores[i]);
        host.getIntegerv(GL_PIXEL_PACK_BUFFER_BINDING, &m_packBuffer);
        host.getIntegerv(GL_READ_FRAMEBUFFER_BINDING, &m_framebuffer);
        for (const uint32_t store : stores)
            host.pixelStorei(store, store == GL_PACK_ALIGNMENT ? 1 : 0);
        host.bindBuffer(GL_PIXEL_PACK_BUFFER, 0);
        host.bindFramebuffer(GL_READ_FRAMEBUFFER, 0);
    }
    ReadState(const ReadState &) = delete;
    ReadState &operator=(const ReadState &) = delete;
    ~ReadState() {
        m_host.bindFramebuffer(GL_READ_FRAMEBUFFER, static_cast<uint32_t>(m_framebuffer));
        m_host.bindBuffer(GL_PIXEL_PACK_BUFFER, static_cast<uint32_t>(m_packBuffer));
        for (size_t i = 0; i < std::size(stores); ++i)
            m_host.pixelStorei(stores[i], m_stores[i]);
    }

private:
    static constexpr uint32_t stores[] = {GL_PACK_ALIGNMENT, GL_PACK_ROW_LENGTH, GL_PACK_SKIP_ROWS,
                                          GL_PACK_SKIP_PIXELS};

    const HostFunctions &m_host;
    int32_t m_stores[std::size(stores)] = {};
    int32_t m_packBuffer = 0, m_framebuffer = 0;
};

struct Picture {
    int32_t width, height;
    std::vector<uint8_t> pixels; // RGBA, the lowest row first
};

std::optional<Picture> read(Surface &surface) {
    static const HostFunctions host(state().openGLLibrary());
    Picture picture{surface.attribute(EGL_WIDTH), surface.attribute(EGL_HEIGHT), {}};
    if (!host.areThere() || picture.width <= 0 || picture.height <= 0) return std::nullopt;
    picture.pixels.resize(static_cast<size_t>(picture.width) * static_cast<size_t>(picture.height) * 4);
    {
        const ReadState readState(host);
        host.readPixels(0, 0, picture.width, picture.height, GL_RGBA, GL_UNSIGNED_BYTE, picture.pixels.data());
    }
    // The journal, which is on whenever pictures are taken, has collected the program's own error from the host.
    return host.getError() == 0 ? std::optional(std::move(picture)) : std::nullopt;
}

// Renames the complete file, so that readers never see a part of it.
bool store(const Picture &picture, const std::string &path) {
    const std::string whole = path + ".part";
    FILE *file = fopen(whole.c_str(), "we");
    if (!file) return false;
    fprintf(file, "P6\n%d %d\n255\n", picture.width, picture.height);
    std::vector<uint8_t> row(static_cast<size_t>(picture.width) * 3);
    for (int32_t y = picture.height - 1; y >= 0; --y) {
        const uint8_t *pixel = picture.pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(picture.width) * 4;
        for (size_t byte = 0; byte < row.size(); byte += 3, pixel += 4)
            std::copy_n(pixel, 3, row.data() + byte);
        fwrite(row.data(), 1, row.size(), file);
    }
    return fclose(file) == 0 && rename(whole.c_str(), path.c_str()) == 0;
}

struct Wish {
    std::string path; // empty for none
    uint64_t lastFrame = 0;
    double lastSecond = 0;

    Wish() {
        const char *file = findVariable("ZELVANE_PICTURE");
        if (!file || !*file) return;
        path = std::string(file) + '-' + std::to_string(getpid()) + ".ppm";
        if (const char *frames = findVariable("ZELVANE_PICTURE_FRAMES")) lastFrame = strtoull(frames, nullptr, 10);
        if (const char *seconds = findVariable("ZELVANE_PICTURE_SECONDS")) lastSecond = strtod(seconds, nullptr);
    }
};

const Wish &wish() {
    static const Wish &instance = *new Wish; // never destroyed: threads swap while the process ends
    return instance;
}

struct Progress {
    std::mutex mutex; // guards all below
    std::optional<Clock::time_point> first;
    Clock::time_point nextDue; // the time of the next picture before the last frame
    bool isDone = false;
};

enum class Due { no, yes, last };

Due isDue(Progress &progress) {
    const auto now = Clock::now();
    if (!progress.first) progress.first = now;
    const uint64_t frame = State::frameNumber() + 1;
    const std::chrono::duration<double> age = now - *progress.first;
    const bool isLast = (wish().lastFrame != 0 && frame >= wish().lastFrame) ||
                        (wish().lastSecond > 0 && age.count() >= wish().lastSecond);
    if (isLast) return Due::last;
    return now < progress.nextDue ? Due::no : Due::yes;
}

} // namespace

bool areWanted() {
    static const bool wanted = !wish().path.empty();
    return wanted;
}

void take(Surface &surface) {
    static Progress &progress = *new Progress;
    const std::lock_guard lock(progress.mutex);
    if (progress.isDone) return;
    const Due due = isDue(progress);
    if (due == Due::no) return;
    const auto begin = Clock::now();
    const auto picture = read(surface);
    if (!picture || !store(*picture, wish().path)) return;
    progress.isDone = due == Due::last;
    constexpr int restPerPicture = 9;
    const auto end = Clock::now();
    progress.nextDue = end + (end - begin) * restPerPicture;
    journal::write("picture", {{"file", wish().path},
                               {"frame", State::frameNumber() + 1},
                               {"width", picture->width},
                               {"height", picture->height},
                               {"isLast", progress.isDone}});
}

} // namespace egl::frame_pictures
