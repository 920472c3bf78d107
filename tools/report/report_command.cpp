// zelvane report: the system report of this host, and the versions that contexts would get.
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "capability/collect_system_report.h"
#include "host/opengl_library.h"
#include "tools/command/failure.h"
#include "tools/command/verbs.h"
#include "tools/report/formats.h"

namespace tools {

namespace {

enum ExitStatus { carriesEs30 = 0, lacksEs30 = 1, noProbe = 2 };

struct Options {
    bool withExtensions = false;
    bool asJson = false;
};

int refuse(const std::string &reason) {
    std::cerr << "zelvane report: " << reason << "\n";
    return noProbe;
}

int runReport(const Options &options) {
    const auto library = host::openHostOpenGLLibrary();
    if (!library.isLoaded()) return refuse(std::string("the host has no OpenGL library '") + library.name() + "'");
    const auto windowSystem = std::make_shared<glove::WSAPI>();
    capability::SystemReport collected;
    capability::SystemReportFiller filler(collected);
    const auto gate = capability::collectSystemReport(library, windowSystem, filler);
    if (!gate) {
        const char *display = getenv("DISPLAY");
        if (!display) return refuse("no context on the host: DISPLAY is not set");
        return refuse(std::string("no context on the host: the X server '") + display +
                      "' is not running or has no OpenGL 3.2 core context");
    }

    const auto identity = capability::probeHostIdentity(library, windowSystem).value_or(capability::HostIdentity{});
    const auto answers = askAboutVersions(*gate);
    std::cout << (options.asJson ? reportAsJson : reportAsText)(identity, collected, answers, options.withExtensions);
    return answers.carriesEs30 ? carriesEs30 : lacksEs30;
}

} // namespace

} // namespace tools

void addReportCommand(const Verb &top) {
    const Verb report =
        top.verb("report", "Report the capabilities of this host",
                 "Exit status: 0 if the host supports OpenGL ES 3.0 in strict mode, 1 if not, 2 if it has no context.");
    const auto options = std::make_shared<tools::Options>();
    report.flag("--extensions", options->withExtensions, "list the host's OpenGL extensions too");
    report.flag("--json", options->asJson, "print one JSON object");
    report.action([options] {
        if (const int status = tools::runReport(*options)) throw Failure{status};
    });
}
