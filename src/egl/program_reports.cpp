// Journal lines about the names that a program looks up and the frames that it shows.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstring>
#include <iterator>
#include <mutex>
#include <set>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "egl/call_reports.h"
#include "egl/state.h"
#include "egl/thread_record.h"
#include "journal/es_tables.h"
#include "journal/recorded_context.h"

namespace egl::reports {

namespace {

using journal::Json;

struct EglFunction {
    std::string_view name;
    const char *extensions;
};

constexpr EglFunction eglFunctions[] = {
#define EGL_FUNCTION(name, extensions) {#name, extensions},
#include "journal/data/egl_functions.def"
#undef EGL_FUNCTION
};

bool isFirstLookup(const char *name) {
    static auto &mutex = *new std::mutex; // never destroyed: threads look names up while the process ends
    static auto &seen = *new std::set<std::string>;
    const std::lock_guard lock(mutex);
    return seen.insert(name).second;
}

bool hasOneOf(std::string_view wanted, const std::string &announced) {
    const std::string list = ' ' + announced + ' ';
    while (!wanted.empty()) {
        const size_t end = std::min(wanted.find(' '), wanted.size());
        if (list.find(' ' + std::string(wanted.substr(0, end)) + ' ') != std::string::npos) return true;
        wanted.remove_prefix(std::min(end + 1, wanted.size()));
    }
    return false;
}

// Client extensions are included, with or without a display.
std::string announcedByEgl() {
    const EGLint pending = threadRecord.error;
    std::string text;
    const Display *current = threadRecord.currentDisplay;
    for (const EGLDisplay display : {static_cast<EGLDisplay>(const_cast<Display *>(current)), EGL_NO_DISPLAY})
        if (const char *extensions = eglQueryString(display, EGL_EXTENSIONS)) text += std::string(extensions) + ' ';
    threadRecord.error = pending;
    return text;
}

// The extensions that define a name, and whether the device advertises one of them; null if neither is known.
Json eglOrigin(const char *name) {
    const auto *row = std::ranges::find(eglFunctions, std::string_view(name), &EglFunction::name);
    if (row == std::end(eglFunctions)) return {{"extensions", ""}, {"isAnnounced", nullptr}};
    return {{"extensions", row->extensions}, {"isAnnounced", hasOneOf(row->extensions, announcedByEgl())}};
}

Json glOrigin(const char *name) {
    const journal::EsFunction *es = journal::findEsFunction(name);
    const journal::RecordedContext *context = es ? journal::RecordedContext::current() : nullptr;
    return {{"extensions", es ? es->origin.extensions : ""},
            {"isAnnounced", context ? Json(context->device.carries(es->origin)) : Json(nullptr)}};
}

} // namespace

void lookup(__eglMustCastToProperFunctionPointerType answer, const char *name) {
    if (!journal::isOn() || !name || !isFirstLookup(name)) return;
    Json fields = {{"name", name}, {"isFound", answer != nullptr}};
    fields.update(strncmp(name, "egl", 3) == 0 ? eglOrigin(name) : glOrigin(name));
    journal::write("lookup", fields);
}

void swap(EGLBoolean answer, EGLSurface surface) {
    if (!answer || !journal::isOn()) return;
    using Clock = std::chrono::steady_clock;
    static std::atomic<Clock::rep> last = 0;
    const auto now = Clock::now().time_since_epoch().count();
    const auto before = last.exchange(now);
    const std::chrono::duration<double, std::milli> since = Clock::duration(now - before);
    journal::write("frame", {{"frame", State::frameNumber()},
                             {"surface", reinterpret_cast<uintptr_t>(surface)},
                             {"milliseconds", before ? Json(since.count()) : Json(nullptr)}});
}

} // namespace egl::reports
