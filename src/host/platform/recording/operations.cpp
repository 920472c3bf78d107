#include "host/platform/operations.h"

#include <atomic>
#include <map>
#include <string>
#include <type_traits>

#include "host/platform/recording/script.h"

namespace host::platform {

struct PixelFormat {
    std::string name;
    uint64_t display = 0;
    std::map<uint32_t, int32_t> values;
};

struct ContextContainer {
    std::string name;
    std::atomic<int> references = 1; // the owner's, and one for each thread that has it current
    View view;                       // this and the rest are guarded by the script's mutex
    PixelBuffer *buffer = nullptr;
};

struct PixelBuffer {
    std::string name;
    int32_t width = 0;
    int32_t height = 0;
};

struct SavedBinding {
    recording::ThreadBinding binding;
};

namespace recording {

namespace {

void reference(ContextContainer *container) {
    if (container) ++container->references;
}

void dropReference(ContextContainer *container) {
    if (container && --container->references == 0) delete container;
}

template <typename Object>
std::string text(const Object *object) {
    return object ? object->name : "null";
}

std::string text(const View &view) {
    if (!view.window) return "null";
    const std::string window = std::to_string(view.display) + ":" + std::to_string(view.window);
    return view.format ? window + " with " + text(view.format) : window;
}

std::string text(const SavedBinding *saved) {
    if (!saved) return "null";
    return saved->binding.container ? text(saved->binding.container)
                                    : "foreign" + std::to_string(saved->binding.foreign);
}

std::string text(bool value) {
    return value ? "true" : "false";
}

template <typename Number>
requires std::is_integral_v<Number> std::string text(Number value) {
    return std::to_string(value);
}

std::string text(const uint32_t *list) {
    std::string words;
    for (; *list; ++list) {
        words += std::to_string(*list) + " ";
        if (*list != DoubleBuffer) words += std::to_string(*++list) + " ";
    }
    return words + "0";
}

template <typename... Arguments>
std::string call(const char *operation, const Arguments &...arguments) {
    std::string line;
    ((line += (line.empty() ? "" : ", ") + text(arguments)), ...);
    return operation + ("(" + line + ")");
}

// Records a call. Called with the mutex held.
void note(const std::string &line) {
    script().log += line + "\n";
}

std::map<uint32_t, int32_t> listValues(const uint32_t *list) {
    std::map<uint32_t, int32_t> values;
    for (; *list; ++list) {
        const uint32_t attribute = *list;
        values[attribute] = attribute == DoubleBuffer ? 1 : static_cast<int32_t>(*++list);
    }
    return values;
}

PixelFormat *makeFormat(const char *operation, uint64_t display, const uint32_t *attributes) {
    if (takeFailure(operation)) return nullptr;
    return new PixelFormat{"format" + std::to_string(++script().formatCount), display, listValues(attributes)};
}

PixelFormat *createPixelFormat(uint64_t display, const uint32_t *attributes) {
    const std::lock_guard lock(script().mutex);
    auto *format = makeFormat("createPixelFormat", display, attributes);
    note(call("createPixelFormat", display, attributes) + " = " + text(format));
    return format;
}

int32_t pixelFormatValue(const PixelFormat *format, uint32_t attribute) {
    const std::lock_guard lock(script().mutex);
    const auto &given = script().formatValues;
    int32_t value = 0;
    if (const auto own = format->values.find(attribute); own != format->values.end()) value = own->second;
    if (const auto forced = given.find(attribute); forced != given.end()) value = forced->second;
    note(call("pixelFormatValue", format, attribute) + " = " + text(value));
    return value;
}

PixelFormat *derivePixelFormat(const PixelFormat *format, const uint32_t *attributes) {
    const std::lock_guard lock(script().mutex);
    auto *derived = makeFormat("derivePixelFormat", format->display, attributes);
    note(call("derivePixelFormat", format, attributes) + " = " + text(derived));
    return derived;
}

void releasePixelFormat(PixelFormat *format) {
    const std::lock_guard lock(script().mutex);
    note(call("releasePixelFormat", format));
    delete format;
}

ContextContainer *createContext(const PixelFormat *format, ContextContainer *share) {
    const std::lock_guard lock(script().mutex);
    ContextContainer *container = nullptr;
    if (!takeFailure("createContext")) {
        container = new ContextContainer;
        container->name = "context" + std::to_string(++script().contextCount);
    }
    note(call("createContext", format, share) + " = " + text(container));
    return container;
}

void releaseContext(ContextContainer *container) {
    const std::lock_guard lock(script().mutex);
    note(call("releaseContext", container));
    dropReference(container);
}

ContextContainer *currentContext() {
    const std::lock_guard lock(script().mutex);
    note(call("currentContext") + " = " + text(threadBinding().container));
    return threadBinding().container;
}

void clearCurrentContext() {
    bindThread({});
    const std::lock_guard lock(script().mutex);
    note(call("clearCurrentContext"));
}

bool makeCurrent(ContextContainer *container) {
    bool isBound = false;
    {
        const std::lock_guard lock(script().mutex);
        isBound = !takeFailure("makeCurrent");
        note(call("makeCurrent", container) + " = " + text(isBound));
    }
    if (isBound) bindThread({.container = container, .foreign = 0});
    return isBound;
}

bool setView(ContextContainer *container, const View &view) {
    const std::lock_guard lock(script().mutex);
    const bool isSet = !takeFailure("setView");
    note(call("setView", container, view) + " = " + text(isSet));
    if (!isSet) return false;
    container->view = view;
    container->buffer = nullptr;
    return true;
}

View view(const ContextContainer *container) {
    const std::lock_guard lock(script().mutex);
    note(call("view", container) + " = " + text(container->view));
    return container->view;
}

bool setPixelBuffer(ContextContainer *container, PixelBuffer *buffer) {
    const std::lock_guard lock(script().mutex);
    const bool isSet = !takeFailure("setPixelBuffer");
    note(call("setPixelBuffer", container, buffer) + " = " + text(isSet));
    if (!isSet) return false;
    container->view = {};
    container->buffer = buffer;
    return true;
}

bool setReadObject(ContextContainer *container, const NativeObject &object) {
    const std::lock_guard lock(script().mutex);
    note(call("setReadObject", container) + " = " +
         (object.isPixelBuffer() ? text(object.pixelBuffer) : text(object.view)));
    return true;
}

void observeViewFrame(ContextContainer *container, const View &view) {
    const std::lock_guard lock(script().mutex);
    note(call("observeViewFrame", container, view));
}

void flushBuffer(ContextContainer *container) {
    const std::lock_guard lock(script().mutex);
    note(call("flushBuffer", container));
}

int32_t bufferAge(ContextContainer *container) {
    const std::lock_guard lock(script().mutex);
    note(call("bufferAge", container));
    return 0;
}

void flushApplication(uint64_t display) {
    const std::lock_guard lock(script().mutex);
    note(call("flushApplication", display));
}

void setSwapInterval(ContextContainer *container, int32_t interval) {
    const std::lock_guard lock(script().mutex);
    note(call("setSwapInterval", container, interval));
}

SavedBinding *saveBinding() {
    const std::lock_guard lock(script().mutex);
    const auto &binding = threadBinding();
    auto *saved = binding.container || binding.foreign ? new SavedBinding{binding} : nullptr;
    reference(binding.container);
    note(call("saveBinding") + " = " + text(saved));
    return saved;
}

void restoreBinding(SavedBinding *saved) {
    {
        const std::lock_guard lock(script().mutex);
        note(call("restoreBinding", saved));
    }
    bindThread(saved ? saved->binding : ThreadBinding{});
    if (saved) dropReference(saved->binding.container);
    delete saved;
}

PixelBuffer *createPixelBuffer(uint32_t target, uint32_t internalFormat, int32_t maxMipLevel, int32_t width,
                               int32_t height, const PixelFormat *format) {
    const std::lock_guard lock(script().mutex);
    PixelBuffer *buffer = nullptr;
    if (!takeFailure("createPixelBuffer") && width > 0 && height > 0) {
        buffer = new PixelBuffer{"buffer" + std::to_string(++script().bufferCount), width, height};
    }
    note(call("createPixelBuffer", target, internalFormat, maxMipLevel, width, height) +
         (format ? " with " + text(format) : "") + " = " + text(buffer));
    return buffer;
}

constexpr int32_t recordedSize = 16, recordedDepth = 24; // of every pixmap

PixelBuffer *createPixmapBuffer(uint64_t display, uint64_t pixmap, const PixelFormat *format) {
    const std::lock_guard lock(script().mutex);
    auto *buffer = new PixelBuffer{"buffer" + std::to_string(++script().bufferCount), recordedSize, recordedSize};
    note(call("createPixmapBuffer", display, pixmap) + " with " + text(format) + " = " + text(buffer));
    return buffer;
}

int32_t pixmapDepth(uint64_t, uint64_t pixmap) {
    return pixmap ? recordedDepth : 0;
}

bool copyToPixmap(ContextContainer *container, PixelBuffer *pixmap) {
    const std::lock_guard lock(script().mutex);
    note(call("copyToPixmap", container, pixmap));
    return true;
}

void pixelBufferSize(const PixelBuffer *buffer, int32_t *width, int32_t *height) {
    const std::lock_guard lock(script().mutex);
    note(call("pixelBufferSize", buffer));
    if (!buffer) return;
    if (width) *width = buffer->width;
    if (height) *height = buffer->height;
}

void releasePixelBuffer(PixelBuffer *buffer) {
    const std::lock_guard lock(script().mutex);
    note(call("releasePixelBuffer", buffer));
    delete buffer;
}

void viewSize(const View &view, int32_t *width, int32_t *height) {
    const std::lock_guard lock(script().mutex);
    note(call("viewSize", view));
    const auto found = script().windows.find(view.window);
    if (found == script().windows.end()) return;
    if (width) *width = found->second.width;
    if (height) *height = found->second.height;
}

std::string viewTitle(const View &view) {
    const std::lock_guard lock(script().mutex);
    note(call("viewTitle", view));
    const auto found = script().windows.find(view.window);
    return found == script().windows.end() ? std::string() : found->second.title;
}

} // namespace

void bindThread(const ThreadBinding &binding) {
    const std::lock_guard lock(script().mutex);
    reference(binding.container);
    dropReference(threadBinding().container);
    threadBinding() = binding;
}

} // namespace recording

constinit const PlatformOperations operations = {
    .createPixelFormat = recording::createPixelFormat,
    .pixelFormatValue = recording::pixelFormatValue,
    .derivePixelFormat = recording::derivePixelFormat,
    .releasePixelFormat = recording::releasePixelFormat,
    .createContext = recording::createContext,
    .releaseContext = recording::releaseContext,
    .currentContext = recording::currentContext,
    .clearCurrentContext = recording::clearCurrentContext,
    .makeCurrent = recording::makeCurrent,
    .setView = recording::setView,
    .view = recording::view,
    .setPixelBuffer = recording::setPixelBuffer,
    .setReadObject = recording::setReadObject,
    .observeViewFrame = recording::observeViewFrame,
    .flushBuffer = recording::flushBuffer,
    .copyToPixmap = recording::copyToPixmap,
    .bufferAge = recording::bufferAge,
    .flushApplication = recording::flushApplication,
    .setSwapInterval = recording::setSwapInterval,
    .saveBinding = recording::saveBinding,
    .restoreBinding = recording::restoreBinding,
    .createPixelBuffer = recording::createPixelBuffer,
    .createPixmapBuffer = recording::createPixmapBuffer,
    .pixmapDepth = recording::pixmapDepth,
    .pixelBufferSize = recording::pixelBufferSize,
    .releasePixelBuffer = recording::releasePixelBuffer,
    .viewSize = recording::viewSize,
    .viewTitle = recording::viewTitle,
};

} // namespace host::platform
