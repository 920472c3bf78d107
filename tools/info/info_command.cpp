// zelvane info: prints what EGL and OpenGL ES report to a program under "zelvane run", queried from the library.
#include <cstdlib>
#include <iostream>
#include <memory>

#include "tools/command/child_answer.h"
#include "tools/command/failure.h"
#include "tools/command/preferences.h"
#include "tools/command/verbs.h"
#include "tools/info/asked_library.h"
#include "tools/info/info_text.h"
#include "tools/run/checks.h"
#include "tools/run/held_refusals.h"
#include "tools/run/libraries.h"
#include "tools/run/private_preferences.h"

namespace {

struct Options {
    DeviceWish device;
    bool asJson = false;
};

Json deviceInForce() {
    ToolPreferences preferences;
    const std::string name = preferences.currentProfile();
    return name.empty() || preferences.profilesDirectory().empty() ? Json(nullptr) : Json(name);
}

void printInfo(const Options &options) {
    const PrivatePreferences preferences({.device = options.device, .strict = {}});
    const RunLibraries libraries("");
    const HeldRefusals refusals(preferences.directory());
    setenv("ZELVANE_DESKTOP_CLIENTS", "1", 1);
    constexpr std::chrono::seconds limit(30);
    const std::string file = libraries.directory() + "/libEGL.so.1";
    const ChildAnswer answer = askInChild(
        [&] {
            checkXServer();
            return askLibrary(file);
        },
        limit);
    if (!answer.json) failCommand("\"" + file + "\": " + answer.failure);
    Json info = {{"device", deviceInForce()}};
    info.update(*answer.json);
    std::cout << (options.asJson ? jsonFields(info, "configs") : infoAsText(info));
}

} // namespace

void addInfoCommand(const Verb &top) {
    const Verb info =
        top.verb("info", "Print what programs get: EGL, configs, and each version's extensions and limits",
                 "Queries the library itself, set up as by \"zelvane run\".\n"
                 "Exit status: 0 success, 1 EGL cannot be initialised, or there is no such profile.");
    const auto options = std::make_shared<Options>();
    const Word profile =
        info.option("--profile", options->device.profile, "NAME", "the device; default: that of \"zelvane run\"");
    info.flag("--bare", options->device.isBare, "no device: the built-in config").excludes(profile);
    info.flag("--json", options->asJson, "print one JSON object");
    info.action([options] { printInfo(*options); });
}
