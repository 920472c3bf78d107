// zelvane explain: which configs eglChooseConfig would return, and why, before a program runs.
#include <iostream>
#include <memory>

#include "tools/command/failure.h"
#include "tools/command/verbs.h"
#include "tools/explain/criteria.h"
#include "tools/explain/explanation.h"
#include "tools/run/checks.h"
#include "tools/run/private_preferences.h"

namespace {

struct Options {
    DeviceWish device;
    bool byDeviceRules = false;
    bool asJson = false;
    std::vector<std::string> words;
};

void explainChoice(const Options &options) {
    const std::vector<int32_t> criteria = readCriteria(options.words);
    const PrivatePreferences preferences({.device = options.device, .strict = {}});
    // In desktop mode the attributes of configs depend on the host.
    if (!options.byDeviceRules) checkXServer();
    const auto rules = options.byDeviceRules ? egl::ConfigKind::ofDevice : egl::ConfigKind::ofDesktop;
    const Explanation explanation = explain(criteria, rules);
    std::cout << (options.asJson ? explanationAsJson(explanation) : explanationAsText(explanation));
    if (explanation.account.order.empty()) throw Failure{1};
}

} // namespace

void addExplainCommand(const Verb &top) {
    const Verb explain = top.verb(
        "explain", "Show the configs that eglChooseConfig returns for ATTRIBUTE=VALUE, and why not the others",
        "Attributes and values as in EGL's header, with or without EGL_: DEPTH_SIZE=24\n"
        "'SURFACE_TYPE=WINDOW_BIT|PBUFFER_BIT'. Exit status: 0 a config matches, 1 none does or EGL rejects the\n"
        "list, 2 invalid command line.");
    auto options = std::make_shared<Options>();
    const Word profile =
        explain.option("--profile", options->device.profile, "NAME", "the device; default: that of \"zelvane run\"");
    explain.flag("--bare", options->device.isBare, "no device: the built-in config").excludes(profile);
    explain.flag("--device-rules", options->byDeviceRules,
                 "use the device's rules, not those of the EGL standard as \"zelvane run\" does");
    explain.flag("--json", options->asJson, "print one JSON object");
    explain.words("criteria", options->words, "ATTRIBUTE=VALUE, in order; of equal attributes the last counts");
    explain.action([options] { explainChoice(*options); });
}
