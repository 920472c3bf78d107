#include "capability/scripted_host.h"

#include <stdexcept>

ScriptedHost::ScriptedHost(const char *version, const char *extensions, const std::string &directory) {
    if (!library.open({std::string(FAKE_GL_DIRECTORY) + "/" + directory})) throw std::runtime_error("no fake libGL");
    script = reinterpret_cast<FakeGl *(*)()>(library.getSymbol("fakeGl"))();
    script->version = version;
    script->extensions = extensions;
}
