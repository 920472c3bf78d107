// A fake of the host's OpenGL library: records calls, and returns the results of its script. Queries about the host
// itself are not recorded. FAKE_LACKS_STRINGI omits an export.
#include <atomic>
#include <sstream>
#include <string>
#include <vector>

#include "fakes/control.h"
#include "fakes/note.h"

namespace {

FakeGl script{0x911A, 0, 0x5000, "4.6 fake", "4.60 fake", ""};

const std::vector<std::string> &listedExtensions() {
    static std::string text;
    static std::vector<std::string> names;
    const std::string now = script.extensions ? script.extensions : "";
    if (now == text) return names;
    text = now;
    names.clear();
    std::istringstream words(text);
    for (std::string word; words >> word;)
        names.push_back(word);
    return names;
}

} // namespace

extern "C" {

#define FAKE __attribute__((visibility("default")))

FAKE FakeGl *fakeGl() {
    return &script;
}

FAKE void *glFenceSync(uint32_t condition, uint32_t flags) {
    note("glFenceSync(0x%x, %u)", condition, flags);
    return reinterpret_cast<void *>(std::atomic_ref(script.nextSync)++);
}

FAKE void glDeleteSync(void *sync) {
    note("glDeleteSync(%p)", sync);
}

FAKE uint32_t glClientWaitSync(void *sync, uint32_t flags, uint64_t timeout) {
    note("glClientWaitSync(%p, %u, %llu)", sync, flags, static_cast<unsigned long long>(timeout));
    return script.clientWaitResult;
}

FAKE void glWaitSync(void *sync, uint32_t flags, uint64_t timeout) {
    note("glWaitSync(%p, %u, 0x%llx)", sync, flags, static_cast<unsigned long long>(timeout));
}

FAKE void glGetSynciv(void *sync, uint32_t name, int32_t size, int32_t *, int32_t *values) {
    note("glGetSynciv(%p, 0x%x, %d)", sync, name, size);
    *values = script.syncValue;
}

FAKE uint32_t glGetError() {
    note("glGetError()");
    return 0;
}

FAKE void glCopyTexImage2D(uint32_t target, int32_t level, uint32_t format, int32_t x, int32_t y, int32_t width,
                           int32_t height, int32_t border) {
    note("glCopyTexImage2D(0x%x, %d, 0x%x, %d, %d, %d, %d, %d)", target, level, format, x, y, width, height, border);
}

FAKE const char *glGetString(uint32_t name) {
    switch (name) {
    case 0x1F02:
        return script.version;
    case 0x1F03:
        return script.extensions;
    case 0x8B8C:
        return script.glslVersion;
    default:
        return nullptr;
    }
}

FAKE void glGetIntegerv(uint32_t name, int32_t *value) {
    if (name == 0x821D) *value = static_cast<int32_t>(listedExtensions().size());
}

#ifndef FAKE_LACKS_STRINGI
FAKE const char *glGetStringi(uint32_t, uint32_t index) {
    const auto &names = listedExtensions();
    return index < names.size() ? names[index].c_str() : nullptr;
}
#endif

} // extern "C"
