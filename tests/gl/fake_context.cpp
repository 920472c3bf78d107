#include "fake_context.h"

#include <atomic>
#include <mutex>
#include <utility>

#include "foundation/log.h"

namespace fake {

std::function<void *(const egl::Context *, const std::string &)> backEnd;

namespace {

alignas(egl::Context) std::byte storage[64][sizeof(egl::Context)];
std::atomic<size_t> questions = 0;
std::mutex logMutex;
std::vector<std::string> logTexts;

} // namespace

egl::Context *context(size_t index) {
    return reinterpret_cast<egl::Context *>(storage[index]);
}

size_t questionCount() {
    return questions;
}

std::vector<std::string> takeLog() {
    const std::lock_guard lock(logMutex);
    return std::exchange(logTexts, {});
}

void reset() {
    egl::threadRecord = {};
    backEnd = [](const egl::Context *, const std::string &) { return nullptr; };
    questions = 0;
    setLogListener([](int32_t level, const char *text) {
        const std::lock_guard lock(logMutex);
        logTexts.push_back((level == LogError ? "error: " : "other: ") + std::string(text));
    });
    (void)takeLog();
}

} // namespace fake

namespace egl {

constinit thread_local ThreadRecord threadRecord;

void *Context::getExtProcAddress(const char *name) {
    ++fake::questions;
    return fake::backEnd(this, name);
}

} // namespace egl
