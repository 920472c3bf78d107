#include "egl/process_journal.h"

#include <cstdlib>
#include <string>
#include <unistd.h>

#include <nlohmann/json.hpp>

#include "capability/host_probe.h"
#include "egl/desktop_clients.h"
#include "egl/state.h"
#include "foundation/gl_types.h"
#include "foundation/product.h"
#include "journal/findings.h"
#include "journal/journal.h"
#include "journal/recorded_calls.h"

namespace egl {

namespace {

using journal::Json;

// The path of the program's file; empty where the system does not report it.
std::string programPath() {
    char path[4096];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    return length > 0 ? std::string(path, static_cast<size_t>(length)) : "";
}

// Null without a host context.
Json hostWords(const State &state) {
    const capability::HostProbe probe(state.windowSystem());
    if (!probe.isCurrent()) return nullptr;
    const auto getString =
        reinterpret_cast<const unsigned char *(*)(uint32_t)>(state.openGLLibrary().getSymbol("glGetString"));
    if (!getString) return nullptr;
    const auto text = [&](uint32_t name) {
        const auto *found = reinterpret_cast<const char *>(getString(name));
        return std::string(found ? found : "");
    };
    return {{"vendor", text(GL_VENDOR)}, {"renderer", text(GL_RENDERER)}, {"version", text(GL_VERSION)}};
}

void writeEnd() {
    Json fields = {{"frames", State::frameNumber()}};
    fields.update(journal::countedFindings());
    journal::write("end", fields);
}

} // namespace

void beginJournal(const State &state) {
    if (!journal::isOn()) return;
    const std::string &profile = state.profile().name;
    journal::write("start", {{"schema", journal::schemaVersion},
                             {"version", std::string(productVersion) + " (" + productBuild + ')'},
                             {"program", programPath()},
                             {"device", profile.empty() ? Json(nullptr) : Json(profile)},
                             {"forDesktop", desktop_clients::isOn()},
                             {"isStrict", state.isStrictContextMode()},
                             {"host", hostWords(state)}});
    gl::recorder = journal::recorded;
    atexit(writeEnd);
}

} // namespace egl
