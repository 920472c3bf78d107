// The script of the fakes beside the staged library. Their calls are added to the recording platform's log, so that one
// log shows the order of host, back end and window system calls.
#pragma once

#include <cstdint>

#include "zelvane/back_end.h"

extern "C" {

// In the fake host OpenGL library.
struct FakeGl {
    uint32_t clientWaitResult; // of glClientWaitSync
    int32_t syncValue;         // the value that glGetSynciv writes
    uint64_t nextSync;         // the next result of glFenceSync; counts up
    const char *version;       // of glGetString; null for a null result, also of the other two
    const char *glslVersion;
    const char *extensions; // separated by blanks; also the list of glGetStringi
};
FakeGl *fakeGl();

// In each fake back end. createFailures counts down.
struct FakeBackEnd {
    int createFailures;
    ContextAttribs createdWith; // of the last zvCreateEsContext
    ContextAttribs setTo;       // of the last zvSetEsContextAttribs
    uint64_t displayAndHandle[2];
    const char *profilesDirectory; // the result of zvSettingsProfilesDirectory at creation
    const char *profileText;       // that of zvSettingsProfileText
    zvEsContext currentDuringCreate;
};
FakeBackEnd *fakeBackEnd();

} // extern "C"
