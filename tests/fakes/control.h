// Script of the fakes that lie beside the staged library. What they are called with goes into the recording
// platform's log, so that one log shows the order of host, back end and window system calls.
#pragma once

#include <cstdint>

#include "zelvane/back_end.h"

extern "C" {

// In the fake host OpenGL library.
struct FakeGl {
    uint32_t clientWaitResult; // of glClientWaitSync
    int32_t syncValue;         // what glGetSynciv stores
    uint64_t nextSync;         // what glFenceSync gives next; counts up
    const char *version;       // of glGetString; null gives null, and so for the other two
    const char *glslVersion;
    const char *extensions; // separated by blanks; the list of glGetStringi too
};
FakeGl *fakeGl();

// In each fake back end. createFailures counts down.
struct FakeBackEnd {
    int createFailures;
    ContextAttribs createdWith; // of the last zvCreateEsContext
    ContextAttribs setTo;       // of the last zvSetEsContextAttribs
    uint64_t displayAndHandle[2];
    const char *profilesDirectory; // as zvSettingsProfilesDirectory told at creation
    const char *profileText;       // as zvSettingsProfileText did
    zvEsContext currentDuringCreate;
};
FakeBackEnd *fakeBackEnd();

} // extern "C"
