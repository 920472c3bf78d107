// The entries that applications get for GL names: one generic definition over the record and signature of a name.
#pragma once

#include "egl/thread_record.h"
#include "gl/answer_map.h"
#include "gl/gl_types.h"

namespace gl {

// The record of one exposed name, static and constant-initialised.
struct GLEntryProxy {
    const char *const name; // also the name that the back end is asked for
    AnswerMap resolved = {};
};

// The current context's function of this name; asks its back end once for a name and context and keeps the answer.
// Null, with a line in the log, without a current context and for a name that the back end lacks; the latter is logged
// once for a name and context. Leaves the EGL error alone. Any thread.
[[nodiscard, gnu::cold]] Function resolveEntry(GLEntryProxy &proxy);

template <GLEntryProxy &proxy, typename Signature>
struct Entry;

template <GLEntryProxy &proxy, typename Result, typename... Parameters>
struct Entry<proxy, Result(Parameters...)> {
    // On the path of every GL call. Both ways out are tail calls, so that the arguments stay in their registers.
    static Result GL_APIENTRY call(Parameters... arguments) {
        if (const Function function = proxy.resolved.find(egl::threadRecord.current)) [[likely]]
            return reinterpret_cast<Result(GL_APIENTRY *)(Parameters...)>(function)(arguments...);
        return callUnresolved(arguments...);
    }

private:
    // A call with nothing to call is dropped: the application sees only the zero.
    [[gnu::cold, gnu::noinline]] static Result callUnresolved(Parameters... arguments) {
        const Function function = resolveEntry(proxy);
        if (!function) return Result();
        return reinterpret_cast<Result(GL_APIENTRY *)(Parameters...)>(function)(arguments...);
    }
};

} // namespace gl
