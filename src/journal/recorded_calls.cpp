#include "journal/recorded_calls.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <iterator>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include <nlohmann/json.hpp>

#include "foundation/gl_types.h"
#include "journal/findings.h"
#include "journal/recorded_arguments.h"
#include "journal/recorded_context.h"
#include "journal/recording_thunks.h"

namespace journal {

namespace {

constexpr LimitRow limitRows[] = {
#define LIMIT(function, argument, reach, limit, target) {#function, argument, Reach::reach, limit, #limit, target},
#define FORMAT(function, argument)
#include "journal/data/limits.def"
#undef FORMAT
#undef LIMIT
};

struct FormatRow {
    const char *function;
    int argument;
};

constexpr FormatRow formatRows[] = {
#define LIMIT(function, argument, reach, limit, target)
#define FORMAT(function, argument) {#function, argument},
#include "journal/data/limits.def"
#undef FORMAT
#undef LIMIT
};

struct Calls {
    std::mutex mutex; // guards the map and its growth
    std::map<std::pair<std::string, gl::Function>, std::unique_ptr<const RecordedCall>> all;
    std::atomic<const RecordedCall *> byNumber[thunkCount] = {};
};

// Never destroyed: threads call functions while the process ends.
Calls &calls() {
    static Calls &instance = *new Calls;
    return instance;
}

std::unique_ptr<const RecordedCall> makeCall(uint32_t number, const char *name, gl::Function function) {
    const EsFunction *const es = findEsFunction(name);
    auto call = std::make_unique<RecordedCall>(RecordedCall{number, name, function, es, {}, -1});
    if (!es) return call;
    call->name = es->name;
    for (const LimitRow &row : limitRows) {
        if (strcmp(row.function, name) == 0) call->limits.push_back(&row);
    }
    const auto *format =
        std::ranges::find_if(formatRows, [&](const FormatRow &row) { return strcmp(row.function, name) == 0; });
    if (format != std::end(formatRows)) call->formatArgument = format->argument;
    return call;
}

uint32_t GL_APIENTRY recordedGetError() {
    RecordedContext *const context = RecordedContext::current();
    return context ? context->giveError() : 0;
}

std::string wholeCall(const RecordedCall &call, const RecordedArguments &arguments) {
    return std::string(call.name) + '(' + arguments.text() + ')';
}

void lookAtEnumerants(const RecordedCall &call, const RecordedArguments &arguments, const DeviceView &device) {
    for (size_t place = 0; call.es->kinds[place]; ++place) {
        if (call.es->kinds[place] != 'e') continue;
        const auto value = static_cast<uint32_t>(arguments.integer(place));
        if (!device.lacksEnumerant(value)) continue;
        findLacking("enumerant", enumerantName(value), call.name, {{"whole", wholeCall(call, arguments)}});
    }
}

void lookAtFormat(const RecordedCall &call, const RecordedArguments &arguments, const DeviceView &device) {
    const auto format = static_cast<uint32_t>(arguments.integer(static_cast<size_t>(call.formatArgument)));
    // A format of a missing extension has been reported as an enumerant.
    if (device.announcesCompressedFormat(format) || device.lacksEnumerant(format)) return;
    findLacking("compressedFormat", enumerantName(format), call.name, {{"whole", wholeCall(call, arguments)}});
}

void lookAtLimits(const RecordedCall &call, const RecordedArguments &arguments, DeviceView &device) {
    for (const LimitRow *row : call.limits) {
        if (row->target != 0 && static_cast<uint32_t>(arguments.integer(0)) != row->target) continue;
        const auto limit = device.limit(row->limit);
        if (!limit) continue;
        int64_t value = static_cast<int32_t>(arguments.integer(row->argument));
        if (row->reach == Reach::unitBelow) value -= GL_TEXTURE0;
        if (row->reach == Reach::upTo ? value <= *limit : value < *limit) continue;
        findLacking("limit", row->limitName, call.name,
                    {{"value", value}, {"limit", *limit}, {"whole", wholeCall(call, arguments)}});
    }
}

} // namespace

gl::Function recorded(const char *name, gl::Function function) {
    if (!function) {
        findLacking("function", name, name, {{"why", "there is no such function"}});
        return nullptr;
    }
    if (strcmp(name, "glGetError") == 0) return reinterpret_cast<gl::Function>(&recordedGetError);
    const std::lock_guard lock(calls().mutex);
    auto &known = calls().all[{name, function}];
    if (!known) {
        const size_t number = calls().all.size() - 1;
        if (number >= thunkCount) return function;
        known = makeCall(static_cast<uint32_t>(number), name, function);
        calls().byNumber[number].store(known.get(), std::memory_order_release);
    }
    return thunk(known->number, function);
}

gl::Function beginCall(uint32_t number, const SavedCall &saved) {
    const RecordedCall &call = *calls().byNumber[number].load(std::memory_order_acquire);
    RecordedContext *const context = RecordedContext::current();
    if (!context || !call.es) return call.function;
    const RecordedArguments arguments(saved, call.es->kinds);
    if (context->lacks(call))
        findLacking("function", call.name, call.name, {{"extensions", call.es->origin.extensions}});
    lookAtEnumerants(call, arguments, context->device);
    if (call.formatArgument >= 0) lookAtFormat(call, arguments, context->device);
    if (!call.limits.empty()) lookAtLimits(call, arguments, context->device);
    return call.function;
}

void endCall(uint32_t number, const SavedCall &saved) {
    RecordedContext *const context = RecordedContext::current();
    const uint32_t error = context ? context->collectError() : 0;
    if (!error) return;
    const RecordedCall &call = *calls().byNumber[number].load(std::memory_order_acquire);
    findGlError(call.name, error, call.es ? RecordedArguments(saved, call.es->kinds).text() : "");
}

} // namespace journal
