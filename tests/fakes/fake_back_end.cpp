// A back end that records every call with its own name in front. Implements a few GL functions. Built once per library;
// FAKE_NAME distinguishes them, FAKE_LACKS_DELETE and FAKE_LACKS_CREATE omit an export.
#include <cstring>
#include <mutex>

#include "fakes/control.h"
#include "fakes/note.h"

namespace {

FakeBackEnd script{};
[[maybe_unused]] uintptr_t nextEsContext = 0x100;
std::mutex scriptMutex; // contexts may be created and deleted on several threads

void fakeClear(uint32_t mask) {
    note(FAKE_NAME " glClear(%u)", mask);
}
const unsigned char *fakeGetString(uint32_t) {
    return reinterpret_cast<const unsigned char *>(FAKE_NAME);
}

} // namespace

extern "C" {

#define FAKE __attribute__((visibility("default")))

FAKE FakeBackEnd *fakeBackEnd() {
    return &script;
}

#ifndef FAKE_LACKS_CREATE
zvEsContext zvCreateEsContext(const ContextAttribs *attribs, const uint64_t displayAndHandle[2], void *settings,
                              zvEsContext share) {
    const std::lock_guard lock(scriptMutex);
    const bool fails = script.createFailures > 0;
    if (fails) --script.createFailures;
    const auto made = fails ? nullptr : reinterpret_cast<zvEsContext>(nextEsContext++);
    script.createdWith = *attribs;
    memcpy(script.displayAndHandle, displayAndHandle, sizeof script.displayAndHandle);
    script.profilesDirectory = zvSettingsProfilesDirectory(settings);
    script.profileText = zvSettingsProfileText(settings);
    script.currentDuringCreate = zvCurrentEsContext();
    note(FAKE_NAME " zvCreateEsContext(share %p) = %p", share, made);
    return made;
}
#endif

void zvSetEsContextAttribs(zvEsContext esContext, const ContextAttribs *attribs) {
    const std::lock_guard lock(scriptMutex);
    script.setTo = *attribs;
    note(FAKE_NAME " zvSetEsContextAttribs(%p)", esContext);
}

#ifndef FAKE_LACKS_DELETE
void zvDeleteEsContext(zvEsContext esContext) {
    note(FAKE_NAME " zvDeleteEsContext(%p)", esContext);
}
#endif

void *zvGetExtProcAddress(const char *name) {
    note(FAKE_NAME " zvGetExtProcAddress(%s)", name);
    if (!strcmp(name, "glClear")) return reinterpret_cast<void *>(&fakeClear);
    if (!strcmp(name, "glGetString")) return reinterpret_cast<void *>(&fakeGetString);
    return nullptr;
}

void zvSetRenderMode(const uint8_t *mode, size_t length) {
    note(FAKE_NAME " zvSetRenderMode(%u, %zu)", *mode, length);
}

} // extern "C"
