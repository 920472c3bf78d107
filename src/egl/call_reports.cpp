#include "egl/call_reports.h"

#include <algorithm>
#include <string>

#include <nlohmann/json.hpp>

#include "egl/context.h"
#include "egl/refusal.h"
#include "egl/state.h"
#include "egl/surface.h"
#include "egl/thread_record.h"
#include "journal/choice_json.h"
#include "journal/recorded_context.h"
#include "profiles/egl_names.h"

namespace egl::reports {

namespace {

using journal::attributesJson;
using journal::Json;

// step: programs retry the call with other values until one succeeds. logged: the call writes a log line of its own.
enum class Kind { step, end, logged };

uint64_t number(const void *handle) {
    return reinterpret_cast<uintptr_t>(handle);
}

std::string refusalLine(const char *call, const std::string &values, const refusals::Words &words, EGLint error) {
    std::string line = std::string(call) + " refused";
    if (!values.empty()) line += " (" + values + ')';
    line += ": " + (words.why.empty() ? errorName(error) : words.why);
    return words.help.empty() ? line : line + "; " + words.help;
}

void tellRefusal(Kind kind, const char *call, const std::string &values, EGLint error, const refusals::Words &words) {
    journal::write("refusal", {{"call", call},
                               {"values", values},
                               {"error", errorName(error)},
                               {"rule", words.rule},
                               {"why", words.why},
                               {"help", words.help}});
    if (!refusals::hasReaders() || kind == Kind::logged) return;
    const std::string line = refusalLine(call, values, words, error);
    if (kind == Kind::step) {
        refusals::hold(call, line);
    } else {
        refusals::tell(line);
    }
}

void tellRefusal(Kind kind, const char *call, const std::string &values) {
    const EGLint error = threadRecord.error;
    tellRefusal(kind, call, values, error, refusals::takeWords(error));
}

// Clears the note, so that it is not used for a later call.
void forgetNote() {
    refusals::lastNote = {};
}

// Ends the series of a call that programs retry until it succeeds.
void endSteps(const char *call) {
    forgetNote();
    refusals::settle(call);
}

Json sizesJson(const Config &config) {
    Json sizes = Json::object();
    for (const EGLint size :
         {EGL_RED_SIZE, EGL_GREEN_SIZE, EGL_BLUE_SIZE, EGL_ALPHA_SIZE, EGL_DEPTH_SIZE, EGL_STENCIL_SIZE, EGL_SAMPLES})
        sizes[attributeName(size)] = config.attributeOr0(size);
    return sizes;
}

// The attribute that rejected the nearest configs: those that match the most attributes before it.
std::string whyNone(const ChoiceAccount &account) {
    if (account.fallenOut.empty()) return "the device has no configs";
    using FallenOut = ChoiceAccount::FallenOut;
    const FallenOut &nearest =
        *std::ranges::max_element(account.fallenOut, {}, [](const FallenOut &fallen) { return fallen.reason.passed; });
    const FallOut &reason = nearest.reason;
    const auto count = std::ranges::count_if(
        account.fallenOut, [&](const FallenOut &fallen) { return fallen.reason.attribute == reason.attribute; });
    return "no config matches: " + attributeName(reason.attribute) + ' ' + valueText(reason.attribute, reason.wanted) +
           " rejected " + std::to_string(count) + " of " + std::to_string(account.fallenOut.size()) + "; config " +
           std::to_string(nearest.id) + " has " + valueText(reason.attribute, reason.had);
}

} // namespace

void initialize(EGLBoolean answer, EGLDisplay dpy) {
    if (!answer) return tellRefusal(Kind::end, "eglInitialize", "");
    forgetNote();
    EGLint count = 0;
    if (const Display *display = state().findDisplay(dpy)) count = display->listConfigs(nullptr, 0);
    journal::write("initialize", {{"display", number(dpy)}, {"configs", count}});
}

void choice(EGLBoolean answer, const EGLint *attributes, EGLint found, const ChoiceAccount &account) {
    constexpr const char *call = "eglChooseConfig";
    if (!answer) return tellRefusal(Kind::step, call, attributeListText(attributes));
    if (journal::isOn()) {
        Json fields = {{"criteria", attributesJson(attributes)}, {"answers", found}};
        fields.update(journal::choiceJson(account));
        journal::write("choice", fields);
    }
    if (!account.order.empty()) return endSteps(call);
    refusals::lastNote = {refusals::Rule::noConfig, {}};
    refusals::Words words = refusals::takeWords(EGL_SUCCESS);
    words.why = whyNone(account);
    tellRefusal(Kind::step, call, attributeListText(attributes), EGL_SUCCESS, words);
}

void context(EGLContext answer, EGLDisplay dpy, EGLConfig config, EGLContext share, const EGLint *attributes) {
    constexpr const char *call = "eglCreateContext";
    if (!answer) return tellRefusal(Kind::step, call, attributeListText(attributes));
    endSteps(call);
    if (!journal::isOn()) return;
    const Display *display = state().findDisplay(dpy);
    const auto made = display ? display->findContext(answer) : nullptr;
    if (!made) return;
    journal::RecordedContext::forget(made.get());
    const auto &attribs = made->attribs;
    Json fields = {{"context", number(answer)},
                   {"config", number(config)},
                   {"share", number(share)},
                   {"asked", attributesJson(attributes)},
                   {"sizes", sizesJson(*made->config)},
                   {"requestedMajor", attribs.requestedMajor},
                   {"granted", std::to_string(attribs.esMajor) + '.' + std::to_string(attribs.esMinor)},
                   {"isStrict", attribs.strictContextMode != 0},
                   {"checksErrors", attribs.noError == 0}};
    if (made->isDesktop()) fields["api"] = "OpenGL";
    journal::write("context", fields);
}

void surface(EGLSurface answer, const char *call, EGLDisplay dpy, EGLConfig config, const EGLint *attributes) {
    if (!answer) return tellRefusal(Kind::end, call, attributeListText(attributes));
    forgetNote();
    if (!journal::isOn()) return;
    const Display *display = state().findDisplay(dpy);
    const auto made = display ? display->findSurface(answer) : nullptr;
    if (!made) return;
    journal::write("surface", {{"surface", number(answer)},
                               {"call", call},
                               {"config", number(config)},
                               {"attributes", attributesJson(attributes)},
                               {"width", made->attribute(EGL_WIDTH)},
                               {"height", made->attribute(EGL_HEIGHT)}});
}

void makeCurrent(EGLBoolean answer, EGLSurface draw, EGLSurface read, EGLContext context) {
    if (answer) {
        forgetNote();
        // Writes the line about the context's device at its first bind.
        if (journal::isOn()) (void)journal::RecordedContext::current();
        return;
    }
    tellRefusal(Kind::end, "eglMakeCurrent",
                "draw " + std::to_string(number(draw)) + ", read " + std::to_string(number(read)) + ", context " +
                    std::to_string(number(context)));
}

void bindApi(EGLBoolean answer, EGLenum api) {
    if (answer) return forgetNote();
    const bool isDesktop = api == EGL_OPENGL_API;
    tellRefusal(Kind::logged, "eglBindAPI", isDesktop ? "EGL_OPENGL_API" : attributeName(static_cast<EGLint>(api)));
}

} // namespace egl::reports
