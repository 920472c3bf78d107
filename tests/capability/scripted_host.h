// A host OpenGL library with a scripted version and extension list.
#pragma once

#include <stdexcept>
#include <string>

#include "fakes/control.h"
#include "foundation/dynamic_library.h"

class ScriptedHost {
public:
    // A null text is one that the host does not report. The texts must outlive the host.
    explicit ScriptedHost(const char *version, const char *extensions = "", const std::string &directory = "") {
        if (!library.open({FAKE_GL_DIRECTORY "/" + directory})) throw std::runtime_error("no fake libGL");
        script = reinterpret_cast<FakeGl *(*)()>(library.getSymbol("fakeGl"))();
        script->version = version;
        script->extensions = extensions;
    }

    DynamicLibrary library{"libGL.so.1"};
    FakeGl *script = nullptr;
};
