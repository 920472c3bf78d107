// A turning torus in OpenGL ES 2: opens a window, draws some frames, makes the window larger half-way, saves the last
// frame as a picture and prints the EGL and GL strings that it ran with.
#include "egl_window.h"
#include "picture.h"
#include "scene.h"

#include <charconv>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <string_view>

namespace {

constexpr Size sizeAtStart = {640, 480};
constexpr Size sizeAtEnd = {800, 600};

constexpr const char *usage = "Usage: torus [--frames N] [--samples N] [--output FILE]\n"
                              "Draws a rotating torus with OpenGL ES 2 in an X window.\n"
                              "  --frames N     number of frames (300); the window grows half-way\n"
                              "  --samples N    samples per pixel, 0 for none (4)\n"
                              "  --output FILE  save the last frame as a PNG file\n"
                              "  --help         show this text\n"
                              "Exit status: 0 on success, 1 on failure, 2 for an invalid option.\n";

struct WrongOption : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Options {
    int frames = 300;
    int samples = 4;
    std::string output;
    bool wantsHelp = false;
};

int parseNumber(std::string_view option, std::string_view text, int least) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < least) {
        throw WrongOption(std::string(option) + " \"" + std::string(text) + "\" is not a number from " +
                          std::to_string(least) + " on");
    }
    return number;
}

Options parseOptions(int argc, char **argv) {
    Options options;
    for (int index = 1; index < argc; ++index) {
        const std::string_view option = argv[index];
        if (option == "--help") {
            options.wantsHelp = true;
            continue;
        }
        if (option != "--frames" && option != "--samples" && option != "--output") {
            throw WrongOption("option \"" + std::string(option) + "\" is unknown");
        }
        if (++index == argc) throw WrongOption(std::string(option) + " needs a value");
        if (option == "--frames") options.frames = parseNumber(option, argv[index], 1);
        if (option == "--samples") options.samples = parseNumber(option, argv[index], 0);
        if (option == "--output") options.output = argv[index];
    }
    return options;
}

void describe(const EglWindow &window, const GlFunctions &gl) {
    const auto text = [&](GLenum name) {
        const GLubyte *const found = gl.glGetString(name);
        return found ? reinterpret_cast<const char *>(found) : "(none)";
    };
    std::printf("EGL version:  %s\n", window.eglVersion().c_str());
    std::printf("EGL vendor:   %s\n", window.eglVendor().c_str());
    std::printf("GL version:   %s\n", text(GL_VERSION));
    std::printf("GL renderer:  %s\n", text(GL_RENDERER));
    std::printf("config:       id %d, RGBA %d %d %d %d, depth %d, samples %d\n", window.configAttribute(EGL_CONFIG_ID),
                window.configAttribute(EGL_RED_SIZE), window.configAttribute(EGL_GREEN_SIZE),
                window.configAttribute(EGL_BLUE_SIZE), window.configAttribute(EGL_ALPHA_SIZE),
                window.configAttribute(EGL_DEPTH_SIZE), window.configAttribute(EGL_SAMPLES));
    const Size size = window.surfaceSize();
    std::printf("surface:      %d x %d\n", size.width, size.height);
}

void run(const Options &options) {
    EglWindow window("Zelvane: torus", sizeAtStart, options.samples);
    const GlFunctions gl = window.loadFunctions();
    describe(window, gl);
    Scene scene(gl);

    const auto start = std::chrono::steady_clock::now();
    int drawn = 0;
    for (bool isOpen = true; isOpen && drawn < options.frames; ++drawn) {
        if (drawn == options.frames / 2) window.resize(sizeAtEnd);
        const Size size = window.surfaceSize();
        scene.draw(drawn, size);
        isOpen = window.handleEvents();
        const bool isLast = !isOpen || drawn + 1 == options.frames;
        // Read before the swap, which may discard the back buffer.
        if (isLast && !options.output.empty()) {
            writePng(options.output, size, scene.readPixels(size));
            std::printf("picture:      %s, %d x %d\n", options.output.c_str(), size.width, size.height);
        }
        window.swapBuffers();
    }
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    std::printf("frames:       %d, %.1f a second\n", drawn, drawn / elapsed.count());
}

} // namespace

int main(int argc, char **argv) {
    try {
        const Options options = parseOptions(argc, argv);
        if (options.wantsHelp) {
            std::fputs(usage, stdout);
            return 0;
        }
        run(options);
        return 0;
    } catch (const WrongOption &error) {
        std::fprintf(stderr, "torus: %s\n%s", error.what(), usage);
        return 2;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "torus: %s\n", error.what());
        return 1;
    }
}
